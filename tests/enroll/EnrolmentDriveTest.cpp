// The enrolment from a USB drive, up to what the user sees of it.
#include "EnrolmentPageFixture.h"
#include "app/UMenu.h"
#include "enroll/UBodyEnroll.h"
#include "platform/application/UsbDetector.h"
#include "platform/application/WindowStack.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

struct OneDrive : SystemDrives {
    QVector<SystemDrive> Drives() const override { return {{root, 0}}; }
    std::unique_ptr<Watch> WatchDrives(std::function<void()>) const override { return nullptr; }
    QString root;
};

TEST_F(EnrolmentPage, AFileOnADriveFillsTheFormOrSaysWhyNot) {
    enum When { PageIsAway, PageIsShownFirst, WindowIsAwayUnderALock };
    const struct {
        When when;
        bool enrolled;
        const char* text;
        const char* form; ///< code, account, name, prefix and suffix
        int tags;
        const char* refusal = "";
    } cases[] = {
        {PageIsAway, false, R"({"code": "x", "account": "y", "deviceName": "n"})", "x y n  typed ", 1},
        {PageIsAway, false,
         R"({"code": "x", "account": "y", "deviceName": "n", "devicePrefix": "p", "tags": ["a", "b"]})",
         "x y n p typed ", 2},
        {PageIsAway, false, R"({"code": "x"})", "before    typed ", 1,
         "The enrolment file on the USB drive lacks the code or the account."},
        {PageIsAway, false, "[]", "before    typed ", 1,
         "The enrolment file on the USB drive does not have the right format."},
        {PageIsAway, true, R"({"code": "x", "account": "y"})",
         "A1B2C3 admin@school.example Lecture hall 3   ", 2,
         "A file for the enrolment was found on the USB drive, but this device is enrolled already."},
        {PageIsShownFirst, false, R"({"code": "x", "account": "y"})", "x y    ", 0},
        {WindowIsAwayUnderALock, false, R"({"code": "x", "account": "y", "tags": ["a"]})", "x y    ", 1},
    };
    OneDrive drives;
    for (const auto& row : cases) {
        SCOPED_TRACE(row.text);
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("Enrollment 1.json")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(row.text);
        file.close();
        QWidget lock;
        lock.setProperty("TopLevel", 6);
        WindowStack::Instance()->PushWindow(&lock);
        stage.reset();
        stage = std::make_unique<Stage>(row.enrolled);
        if (row.when == WindowIsAwayUnderALock) {
            lock.show();
            stage->Window().hide();
        } else if (!row.enrolled) {
            stage->Window().OpenEnrolmentPage();
            Edit("schoolCode").setText(QStringLiteral("before"));
            Edit("deviceSuffix").setText(QStringLiteral("typed"));
            AddTag("typed");
            stage->Window().findChild<UMenu*>()->SwitchTo(PageIndex(PageId::Network));
        }
        if (row.when == PageIsShownFirst) {
            drives.root = folder.path();
            ownPage = new UBodyEnroll(&stage->Window(), drives);
            ownPage->show();
        } else {
            emit Page().findChild<UsbDetector*>()->UsbArrived(folder.path());
        }
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return Edit("schoolCode").text() == QLatin1String("x") || !Toast().empty(); }));
        lock.hide();
        stage->Window().show();
        EXPECT_EQ(Overlay(), *row.refusal ? "" : "UBodyEnrollUsbAlert");
        EXPECT_EQ(Toast(), row.refusal);
        EXPECT_EQ(stage->Window().findChild<UBody*>()->Page(PageIndex(PageId::Enrolment))->isVisible(),
                  row.enrolled || (!*row.refusal && row.when != PageIsShownFirst))
            << "only a drive that is put in brings the page up";
        std::string form;
        for (const char* name : {"schoolCode", "adminAccount", "deviceName", "devicePrefix", "deviceSuffix"})
            form += Edit(name).text().toStdString() + ' ';
        EXPECT_EQ(form, row.form);
        EXPECT_EQ(Page().findChildren<QWidget*>(QStringLiteral("DeviceTagsItem")).size(), row.tags);
    }
    stage.reset(); // whose page knows the drives
}

} // namespace
