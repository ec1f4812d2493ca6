#include "enroll/UBodyEnrollModal.h"
#include "enroll/UBodyEnrollPermissionsModal.h"
#include "enroll/UBodyEnrollTagItem.h"
#include "enroll/UBodyEnrollTags.h"
#include "enroll/UBodyEnrollTip.h"
#include "enroll/UBodyEnrollUsbAlert.h"
#include "enroll/UEnrollToast.h"
#include "entity/EnrollEntities.h"
#include "entity/SettingsEntities.h"
#include "lock/UBodyEnrollUnModal.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "platform/context/DevicePermissions.h"
#include "platform/context/LanguageHelper.h"
#include "platform/link/ControllerBase.h"
#include "platform/link/PipeClientService.h"
#include "platform/security/PasswordHelper.h"
#include "support/FakeService.h"
#include "widgets/UExitButton.h"
#include "widgets/USwitch.h"

#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

struct Shell : RyxWindow {
    void Notify(NoticeKind, const QString& text) override { told += text; }
    void OpenNetworkPage() override { happened += QStringLiteral("network "); }
    void OpenEnrolmentPage() override {}
    QString told, happened;
};

/// A page in a window, which has the focus, and a service that listens.
class EnrollDialogs : public testing::Test {
protected:
    void SetUp() override {
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        AppContextData::Instance()->Reset();
        link.SetServer(service.Address());
        link.Start();
        controller.SetService(&link);
        const QMap<QString, ControllerBase*> controllers{{QStringLiteral("ryx"), &controller}};
        qApp->setProperty("controllers", QVariant::fromValue(controllers));
        window.resize(900, 700);
        page.resize(window.size());
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        ASSERT_TRUE(service.WaitForClient());
        ASSERT_TRUE(QTest::qWaitFor([this] { return link.IsConnected(); }));
    }
    void TearDown() override {
        link.Stop();
        qApp->setProperty("controllers", QVariant());
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    }

    void Press(int key) { QTest::keyClick(window.windowHandle(), static_cast<Qt::Key>(key)); }
    void Type(const char* keys) {
        for (; *keys; ++keys)
            QTest::keyClick(window.windowHandle(), *keys);
    }
    static QPushButton* Button(QObject& in, const char* name) {
        return in.findChild<QPushButton*>(QLatin1String(name));
    }

    Shell window;
    QWidget page{&window};
    FakeService service;
    PipeClientService& link = *PipeClientService::Instance();
    ControllerBase controller;
    DevicePermissions permissions{QString()};
};

TEST_F(EnrollDialogs, TheFailureDialogDoesWhatIsPressedAndEscapeTriesNothing) {
    UBodyEnrollModal dialog(&page);
    dialog.setTitle("bind_success");
    dialog.setOkText("permission_done");
    QObject::connect(&dialog, &UBodyEnrollModal::OnOk, &page,
                     [this] { window.happened += QStringLiteral("retry "); });
    QObject::connect(&dialog, &UBodyEnrollModal::OnClose, &page,
                     [this] { window.happened += QStringLiteral("close "); });
    const std::pair<std::function<void()>, const char*> acts[] = {
        {[&] { Press(Qt::Key_Escape); }, "close "},
        {[&] { Button(dialog, "dialogClose")->click(); }, "close "},
        {[&] { Press(Qt::Key_Return); }, "network "},
        {[&] { Button(dialog, "cancelButton")->click(); }, "retry "},
        {[&] { page.hide(); }, ""},
    };
    for (const auto& [act, happens] : acts) {
        window.happened.clear();
        dialog.show();
        ASSERT_TRUE(dialog.isVisible());
        act();
        EXPECT_FALSE(dialog.isVisible()) << happens;
        EXPECT_EQ(window.happened, QLatin1String(happens));
    }
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("de"));
    QCoreApplication::processEvents();
    EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("dialogTitle"))->text(),
              QStringLiteral("Dieses Gerät ist registriert."));
    EXPECT_EQ(Button(dialog, "okButton")->text(), QStringLiteral("Fertig"));
}

TEST_F(EnrollDialogs, SwitchesReportTheUsersChangesAloneAndScreenViewTakesControlAlong) {
    constexpr char On[] = R"({"status": true})", Off[] = "{}";
    const struct {
        const char* granted; ///< names, separated by blanks; null: all stays as it was
        const char* pressed; ///< row
        PipeKey received;    ///< with nothing pressed
        const char* body;
        const char* sent;     ///< key and state of each message
        const char* switches; ///< location, screen view, remote control: 1, 0, or - while it cannot be used
    } cases[] = {
        {"location screen remoteControl", nullptr, {}, nullptr, "", "111"},
        {"screenshot nobodyKnows", nullptr, {}, nullptr, "", "010"},
        {"remoteControl", nullptr, {}, nullptr, "", "00-"},
        {"", "locationRow", {}, nullptr, "76+", "10-"},
        {"location", "locationRow", {}, nullptr, "76-", "00-"},
        {"", "screenViewRow", {}, nullptr, "53+", "010"},
        {"screen remoteControl", "screenViewRow", {}, nullptr, "53-52-", "00-"},
        {"screen", "remoteControlRow", {}, nullptr, "52+", "011"},
        {"", "remoteControlRow", {}, nullptr, "", "00-"},
        {"screen", nullptr, PipeKey::LocationSetting, On, "", "110"},
        {"screen", nullptr, PipeKey::ScreenNotifySetting, On, "", "011"},
        {"screen remoteControl", nullptr, PipeKey::ScreenShotSetting, Off, "", "00-"},
        {nullptr, "screenViewRow", {}, nullptr, "53+", "010"},
        {"", nullptr, PipeKey::ScreenShotSetting, On, "", "010"},
        {"screen", nullptr, PipeKey::ScreenShotSetting, R"({"status": {}})", "", "010"},
        {"screen", nullptr, PipeKey::ScreenShotSetting, "no JSON", "", "010"},
        {"location", nullptr, PipeKey::LocationSetting, "", "", "10-"},
        {"screen remoteControl", nullptr, PipeKey::ScreenNotifySetting, "{", "", "011"},
        {"", nullptr, PipeKey::ScreenNotifySetting, On, "", "00-"},
        {nullptr, nullptr, PipeKey::ScreenShotSetting, On, "", "011"},
        {nullptr, "screenViewRow", {}, nullptr, "53-52-", "00-"},
        {nullptr, nullptr, PipeKey::ScreenShotSetting, On, "", "010"},
    };
    UBodyEnrollPermissionsModal dialog(&page, permissions);
    const auto switchOf = [&](const char* row) {
        return dialog.findChild<QWidget*>(QLatin1String(row))->findChild<USwitch*>();
    };
    for (const auto& [granted, pressed, received, body, sent, switches] : cases) {
        SCOPED_TRACE(testing::Message() << (granted ? granted : "as it was") << " | "
                                        << (pressed ? pressed
                                            : body  ? body
                                                    : ""));
        std::vector<std::string> names;
        for (const QString& name : QString::fromLatin1(granted).split(QLatin1Char(' ')))
            names.push_back(name.toStdString());
        if (granted)
            AppContextData::Instance()->SetPermissionList({}); // also what is granted anew is new
        if (granted)
            AppContextData::Instance()->SetPermissionList(names);
        dialog.show();
        if (pressed)
            QTest::mouseClick(switchOf(pressed), Qt::LeftButton);
        else if (body)
            link.Deliver(received, body);
        link.Send(PipeKey::ContextRequest); // behind whatever was sent
        std::string arrived;
        for (auto frame = service.Receive(); frame.key != PipeKey::ContextRequest;
             frame = service.Receive()) {
            ASSERT_NE(static_cast<int>(frame.key), -1);
            DeviceSettingNotify state;
            state.ReadFromString(frame.body);
            arrived += std::to_string(static_cast<int>(frame.key)) + (state.status ? '+' : '-');
        }
        EXPECT_EQ(arrived, sent);
        std::string shown;
        for (const char* row : {"locationRow", "screenViewRow", "remoteControlRow"})
            shown += !switchOf(row)->isEnabled() ? '-' : switchOf(row)->isChecked() ? '1' : '0';
        EXPECT_EQ(shown, switches);
    }
    link.Stop();
    QTest::mouseClick(switchOf("locationRow"), Qt::LeftButton);
    EXPECT_FALSE(switchOf("locationRow")->isChecked()) << "it shows what the service was never told";
    Press(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(EnrollDialogs, OneToastTellsTheLatestAndTheTrayTellsForAHiddenWindow) {
    UBodyEnrollPermissionsModal dialog(&page, permissions);
    UEnrollToast* toast = UEnrollToast::Of(&page);
    toast->Tell(NoticeKind::Error, QStringLiteral("first"));
    dialog.EnrollSuccessfullyToast();
    EXPECT_EQ(toast->ShownMessage(), QStringLiteral("This device is enrolled."));
    dialog.ModifiedSuccessfullyToast();
    EXPECT_EQ(toast->ShownMessage(), QStringLiteral("Modified successfully"));
    EXPECT_EQ(window.told, QString());
    window.hide();
    dialog.EnrollSuccessfullyToast();
    EXPECT_EQ(window.told, QStringLiteral("This device is enrolled."));
}

TEST_F(EnrollDialogs, TagsAreAddedOrRefusedWithAReason) {
    UBodyEnrollTags tags(&page);
    tags.resize(600, 300);
    tags.show();
    auto* field = tags.findChild<QLineEdit*>(QStringLiteral("tagField"));
    const auto* error = tags.findChild<QLabel*>(QStringLiteral("fieldError"));
    const struct {
        const char* typed;
        const char* error;
    } steps[] = {
        {"  hall ", ""},
        {"hall", "The device already has this tag."},
        {"Hall", ""},
        {"   ", "Type a tag first."},
        {"123456789 123456789 123456789 12", ""},
        {"123456789 123456789 123456789 123", "A tag has at most 32 characters."},
    };
    std::vector<std::string> expected;
    for (const auto& [typed, message] : steps) {
        SCOPED_TRACE(typed);
        if (*message == 0)
            expected.push_back(QString::fromLatin1(typed).trimmed().toStdString());
        field->setFocus();
        field->clear();
        Type(typed);
        EXPECT_FALSE(error->isVisible()) << "typing takes the message back";
        Press(Qt::Key_Return);
        EXPECT_EQ(tags.Tags(), expected);
        EXPECT_EQ(error->text(), QLatin1String(message));
        EXPECT_EQ(error->isVisible(), *message != 0);
        EXPECT_EQ(field->text().isEmpty(), *message == 0) << "what was refused can be corrected";
    }
    tags.ChangeTags(std::vector<std::string>(25, "of the service"));
    EXPECT_EQ(tags.Tags().size(), 25u);
    field->setText(QStringLiteral("one more"));
    Button(tags, "tagAddButton")->click();
    EXPECT_EQ(error->text(), QStringLiteral("The list is too long: a device has at most 20 tags."));

    tags.ChangeTags({"a", "b", "c"});
    Button(*tags.findChildren<UBodyEnrollTagItem*>()[1], "tagRemoveButton")->click();
    EXPECT_EQ(tags.Tags(), (std::vector<std::string>{"a", "c"}));
    tags.SetAllEditAble(false);
    EXPECT_FALSE(field->isVisible());
    for (const auto* item : tags.findChildren<UBodyEnrollTagItem*>())
        EXPECT_FALSE(item->findChild<QPushButton*>()->isVisible());
}

TEST_F(EnrollDialogs, TheTipStaysItsTimeFromTheLastClickAndGoesWithItsPage) {
    QPushButton anchor(&page);
    UBodyEnrollTip tip(&page);
    auto* timer = tip.findChild<QTimer*>(QStringLiteral("tipTimer"));
    tip.ShowAt(&anchor, 60000);
    tip.ShowAt(&anchor, 3000);
    EXPECT_EQ(timer->interval(), 3000) << "the last click counts";
    QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_FALSE(tip.isVisible());
    tip.ShowAt(&anchor);
    page.hide();
    page.show();
    EXPECT_FALSE(tip.isVisible());
}

TEST_F(EnrollDialogs, TheExitButtonDismissesTheUsbAlert) {
    UExitButton exit(&window);
    exit.setGeometry(840, 10, 44, 44);
    exit.show();
    UBodyEnrollUsbAlert alert(&page);
    alert.SetFile(QStringLiteral("E:/Enrollment 1.json"));
    alert.show();
    EXPECT_TRUE(alert.accessibleDescription().contains(QLatin1String("file Enrollment 1.json says")));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, exit.geometry().center());
    EXPECT_FALSE(alert.isVisible());
}

TEST_F(EnrollDialogs, UnenrollingNeedsOneOfTwoPasswordsAndSendsCodeAndAccountAlone) {
    AppContextData& context = *AppContextData::Instance();
    context.SetSchoolCode("A1B2C3");
    context.SetAdminAccount("a@b.example");
    context.SetUnlockPassword(PasswordHelper::HashVelmoraPassword("123456"));
    context.SetUnbindPassword(PasswordHelper::HashVelmoraPassword("654321"));
    UBodyEnrollUnModal dialog(&page);
    QString order;
    QObject::connect(&window, &RyxWindow::BindingBegan, &page, [&](RyxWindow::BindAction action) {
        order += QStringLiteral("%1 %2 begin ").arg(dialog.isVisible()).arg(static_cast<int>(action));
    });
    QObject::connect(&dialog, &UBodyEnrollUnModal::UnEnrollingState, &page,
                     [&] { order += QStringLiteral("signal"); });
    const auto enter = [this](const char* digits) {
        Type(digits);
        Press(Qt::Key_Return);
    };
    const auto status = [this](int number) { window.IotStatusChanged(static_cast<IotStatus>(number)); };
    enum Outcome { Sent, Gone, Stays };
    const std::pair<std::function<void()>, Outcome> acts[] = {
        {[&] { enter("123456"); }, Sent},  {[&] { enter("654321"); }, Sent},
        {[&] { enter("111111"); }, Stays}, {[&] { Press(Qt::Key_Escape); }, Gone},
        {[&] { page.hide(); }, Gone},      {[&] { context.SetEnrolled(false); }, Gone},
        {[&] { status(0); }, Gone},        {[&] { status(4); }, Gone},
        {[&] { status(5); }, Gone},        {[&] { status(2); }, Stays},
        {[&] { status(3); }, Stays},
    };
    int number = 0;
    for (const auto& [act, outcome] : acts) {
        SCOPED_TRACE(number++);
        context.SetEnrolled(true);
        status(2);
        page.show();
        order.clear();
        dialog.show();
        ASSERT_TRUE(dialog.isVisible());
        act();
        EXPECT_EQ(dialog.isVisible(), outcome == Stays);
        EXPECT_EQ(order, outcome == Sent ? QStringLiteral("0 3 begin signal") : QString());
        dialog.hide();
    }
    link.Send(PipeKey::ContextRequest);
    DeviceBindingParam expected;
    expected.code = "A1B2C3";
    expected.email = "a@b.example";
    for (int request = 0; request < 2; ++request) {
        const FrameDecoder::Frame frame = service.Receive();
        EXPECT_EQ(frame.key, PipeKey::Binding);
        EXPECT_EQ(frame.body, expected.WriteToString());
    }
    EXPECT_EQ(service.Receive().key, PipeKey::ContextRequest);
}

} // namespace
