#pragma once

#include "app/MainWindow.h"
#include "app/Pages.h"
#include "app/UBody.h"
#include "app/ULauncher.h"
#include "enroll/UBodyEnrollModal.h"
#include "entity/EnrollEntities.h"
#include "gallery/Scenes.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/link/PipeClientService.h"
#include "support/FakeService.h"
#include "widgets/UOverlay.h"
#include "widgets/UTextButton.h"
#include "widgets/UToast.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPointer>
#include <QtTest>
#include <gtest/gtest.h>

/// The enrolment page in its window, over a real link.
class EnrolmentPage : public testing::Test {
protected:
    void SetUp() override {
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        Connect();
    }
    void TearDown() override { link.Stop(); }

    void Connect() {
        link.SetServer(service.Address());
        link.Start();
        ASSERT_TRUE(QTest::qWaitFor([this] { return link.IsConnected() && service.IsConnected(); }));
    }
    /// A fresh window that shows the page.
    void Start(bool enrolled) {
        stage.reset();
        stage = std::make_unique<Stage>(enrolled);
        if (!enrolled)
            stage->Window().findChild<ULauncher*>()->EnrolRequested();
    }
    QWidget& Page() {
        return ownPage ? *ownPage : *stage->Window().findChild<UBody*>()->Page(PageIndex(PageId::Enrolment));
    }
    QLineEdit& Edit(const char* name) { return *Page().findChild<QLineEdit*>(QLatin1String(name)); }
    UTextButton& Button() { return *Page().findChild<UTextButton*>(QStringLiteral("bindButton")); }
    int State() { return Button().property("ButtonState").toInt(); }
    void Press(QWidget& button) { QTest::mouseClick(&button, Qt::LeftButton); }
    void Agree(bool agreed) {
        Page().findChild<QCheckBox*>(QStringLiteral("agreementBox"))->setChecked(agreed);
    }
    void AddTag(const char* tag) {
        Edit("tagField").setText(QLatin1String(tag));
        QTest::keyClick(&Edit("tagField"), Qt::Key_Return);
    }
    void Fill() {
        Edit("schoolCode").setText(QLatin1String(Code));
        Edit("adminAccount").setText(QLatin1String(Account));
        Edit("deviceName").setText(QStringLiteral("Hall 3"));
        AddTag("first");
        AddTag("second");
        Agree(true);
    }
    /// Names of the fields that are marked as wrong.
    std::string Marked() {
        std::string marked;
        for (const char* name : {"schoolCode", "adminAccount", "deviceName"})
            if (Edit(name).parentWidget()->property("error").toBool())
                marked += std::string(name) + ' ';
        return marked;
    }
    DeviceBindingParam Request() {
        FrameDecoder::Frame frame = service.Receive();
        while (frame.key == PipeKey::ContextRequest || frame.key == PipeKey::OtaVersionInfo)
            frame = service.Receive(); // what every connection begins with
        EXPECT_EQ(frame.key, PipeKey::Binding);
        DeviceBindingParam request;
        request.ReadFromString(frame.body);
        return request;
    }
    void SendRequest() {
        Fill();
        Press(Button());
        Request();
    }
    void Receive(int key, const std::string& body) { stage->Receive(key, body); }
    void ReceiveStatus(int status) { Receive(2, "{\"status\": " + std::to_string(status) + "}"); }
    static std::string Result(bool result, const std::string& code = {}) {
        return std::string(R"({"result": )") + (result ? "true" : "false") + R"(, "code": ")" + code +
               R"(", "schoolCode": "other", "deviceName": "other"})";
    }
    /// Object name of the overlay on screen.
    std::string Overlay() {
        for (const UOverlay* overlay : stage->Window().findChildren<UOverlay*>())
            if (overlay->isVisible())
                return overlay->objectName().toStdString();
        return {};
    }
    std::string Toast() {
        for (const UToast* toast : stage->Window().findChildren<UToast*>())
            if (!toast->ShownMessage().isEmpty())
                return toast->ShownMessage().toStdString();
        return {};
    }
    UTextButton& Retry() {
        return *stage->Window().findChild<UBodyEnrollModal*>()->findChild<UTextButton*>(
            QStringLiteral("cancelButton"));
    }
    bool IsWaiting() {
        EXPECT_EQ(Button().IsLoading(), stage->Window().IsBinding());
        EXPECT_TRUE(Button().isEnabled());
        return Button().IsLoading();
    }
    static std::string Known() {
        const AppContextData& context = *AppContextData::Instance();
        return std::to_string(context.Enrolled()) + ' ' + context.SchoolCode() + ' ' +
               context.AdminAccount() + ' ' + context.DeviceName() + ' ' +
               std::to_string(context.DeviceTags().size());
    }

    static constexpr char Code[] = "a1b2c3";
    static constexpr char Account[] = "ad.min_1-x@lake-side.example.org";

    FakeService service;
    PipeClientService& link = *PipeClientService::Instance();
    std::unique_ptr<Stage> stage;
    QPointer<QWidget> ownPage; // in place of the window's
};
