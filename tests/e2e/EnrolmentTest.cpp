// Enrolling and unenrolling the device with real keys and mouse, and what the service does meanwhile.
#include "EndToEndFixture.h"

#include <QFile>

namespace {

const char* const Code = "a1b2c3"; // the stand-in accepts them
const char* const Account = "admin@lakeside.example";

class EnrolmentEndToEndTest : public EndToEndTest {
protected:
    bool StartUnenrolled() {
        product.ConfigureUnenrolled();
        return product.StartBoth() && enrolPage.Open();
    }
    bool StartFilled() {
        if (!StartUnenrolled())
            return false;
        enrolPage.Fill(Code, Account, "hall 3");
        product.Tell("bodies on");
        return true;
    }
    /// Tells the service, which has heard it afterwards.
    void Order(const std::string& command) {
        product.Tell(command);
        product.Tell("say heard");
        ASSERT_TRUE(product.AgentSays("say heard"));
    }
    bool StartEnrolled() { return StartBoth() && enrolPage.Wait(&EnrolPage::OffersUnenrolment); }
    void OpenPrompt() {
        enrolPage.PressButton();
        ASSERT_TRUE(enrolPage.Wait(&EnrolPage::IsCovered));
    }
    /// The permissions are shown over the page, which is then that of an enrolled device.
    bool BecomesEnrolled() {
        if (!enrolPage.Wait(&EnrolPage::IsCovered))
            return false;
        screen->Press("Escape");
        return mainPage.WaitForStatus(MainPage::Connected) && enrolPage.Wait(&EnrolPage::OffersUnenrolment);
    }
    bool IsUncovered() {
        return WaitUntil([this] { return !enrolPage.IsCovered(); });
    }
    bool Unenrols() {
        return product.AgentSays("\"binding\" : false") && mainPage.WaitForStatus(MainPage::NotEnrolled) &&
               enrolPage.Wait(&EnrolPage::OffersAction);
    }
    void Put(const char* name, const char* text) {
        QDir(QString::fromStdString(product.Folder())).mkpath(QStringLiteral("stick"));
        QFile file(QString::fromStdString(product.Folder() + "/stick/" + name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
};

TEST_F(EnrolmentEndToEndTest, EnrolsIsKnownAfterARestartAndUnenrolsWithThePassword) {
    ASSERT_TRUE(StartFilled());
    Order("binding-delay 0.5");
    enrolPage.PressButton(5);
    ASSERT_TRUE(product.AgentSays("\"code\" : \"a1b2c3\""));
    ASSERT_TRUE(BecomesEnrolled());
    EXPECT_EQ(product.AgentLines("received 3 Binding"), 1);
    EXPECT_EQ(product.Configured("deviceName"), QLatin1String("hall 3"));
    EXPECT_EQ(product.Configured("language"), QLatin1String("en"));

    product.FrontEnd().Kill();
    product.Agent().Kill();
    product.StartFrontEnd();
    ASSERT_TRUE(mainPage.WaitForStatus(MainPage::Disconnected));
    EXPECT_TRUE(enrolPage.Wait(&EnrolPage::OffersAction)) << "to connect";
    ASSERT_TRUE(product.StartAgent());
    product.Tell("bodies on");
    ASSERT_TRUE(mainPage.WaitForStatus(MainPage::Connected));
    ASSERT_TRUE(enrolPage.Wait(&EnrolPage::OffersUnenrolment));
    OpenPrompt();
    screen->Type("111111");
    screen->Press("Return");
    ASSERT_TRUE(product.WaitForLog("input password eorr cout is :1"));
    EXPECT_EQ(product.AgentLines("received 3 Binding"), 0);
    screen->Type("654321"); // the unbind password
    screen->Press("Return");
    EXPECT_TRUE(Unenrols());
    EXPECT_EQ(product.AgentLines("\"email\" : \"admin@lakeside.example\""), 1);
    EXPECT_EQ(product.Configured("enrolled"), QJsonValue(false));
}

TEST_F(EnrolmentEndToEndTest, EachFailureIsToldAndTheNextTryMayDoBetter) {
    ASSERT_TRUE(StartFilled());
    Order("binding-delay 1");
    for (const std::string code :
         {"r_802001", "r_802002", "r_802003", "error", "170002", "170004", "other", "net_error"}) {
        SCOPED_TRACE(code);
        Order("binding fail " + code);
        enrolPage.PressButton();
        ASSERT_TRUE(WaitUntil([&] { return !enrolPage.OffersAction(); })) << "it waits";
        ASSERT_TRUE(product.AgentSays("was sent 3 Binding"));
        if (code == "net_error") {
            ASSERT_TRUE(enrolPage.Wait(&EnrolPage::IsCovered));
            screen->Press("Escape"); // tries nothing
            ASSERT_TRUE(IsUncovered());
        }
        ASSERT_TRUE(enrolPage.Wait(&EnrolPage::OffersAction));
        EXPECT_TRUE(enrolPage.Wait(&EnrolPage::TellsFailure));
        EXPECT_EQ(WaitUntil([&] { return enrolPage.MarksAnswer(); }, std::chrono::milliseconds(300)),
                  code.find("r_802") == 0);
    }
    EXPECT_EQ(product.AgentLines("received 3 Binding"), 8);
    Order("binding normal");
    enrolPage.PressButton();
    EXPECT_TRUE(BecomesEnrolled());
}

TEST_F(EnrolmentEndToEndTest, AnAnswerIsCorrectedAndTheAgreementIsNotForgotten) {
    ASSERT_TRUE(StartUnenrolled());
    enrolPage.Fill(Code, "admin+@lakeside.example", "hall 3", false);
    enrolPage.PressButton();
    ASSERT_TRUE(enrolPage.Wait(&EnrolPage::MarksAnswer)) << "and has the keyboard";
    screen->Press("Home");
    for (int step = 0; step < 6; ++step)
        screen->Press("Right");
    screen->Press("BackSpace");
    enrolPage.PressButton();
    EXPECT_TRUE(WaitUntil([&] { return !enrolPage.MarksAnswer(); }));
    EXPECT_FALSE(WaitUntil([&] { return product.AgentLines("received 3") > 0; }, std::chrono::seconds(1)));
    screen->Press("Tab", {"Shift_L"});
    screen->Press("space");
    enrolPage.PressButton();
    EXPECT_TRUE(BecomesEnrolled());
    EXPECT_EQ(product.Configured("adminAccount"), QLatin1String(Account));
}

TEST_F(EnrolmentEndToEndTest, WithoutTheServiceNobodyWaits) {
    ASSERT_TRUE(StartFilled());
    Order("binding silent");
    enrolPage.PressButton();
    ASSERT_TRUE(product.AgentSays("received 3 Binding"));
    product.Agent().Kill();
    for (const char* when : {"while waiting", "before pressing"}) {
        ASSERT_TRUE(enrolPage.Wait(&EnrolPage::IsCovered)) << when;
        screen->Press("Escape");
        ASSERT_TRUE(enrolPage.Wait(&EnrolPage::OffersAction)) << when;
        EXPECT_TRUE(enrolPage.Wait(&EnrolPage::TellsFailure)) << when;
        enrolPage.PressButton();
    }
    ASSERT_TRUE(enrolPage.Wait(&EnrolPage::IsCovered));
    screen->Press("Escape");
    ASSERT_TRUE(product.StartAgent());
    ASSERT_TRUE(mainPage.WaitForStatus(MainPage::NotEnrolled)) << "the service has said all";
    enrolPage.PressButton();
    EXPECT_TRUE(BecomesEnrolled()) << "the answers are still there";
}

TEST_F(EnrolmentEndToEndTest, AStatusBeforeTheResultIsTheResult) {
    ASSERT_TRUE(StartFilled());
    Order("binding silent");
    enrolPage.PressButton();
    ASSERT_TRUE(product.AgentSays("received 3 Binding"));
    product.Tell("status connected");
    EXPECT_TRUE(enrolPage.Wait(&EnrolPage::OffersUnenrolment));
    product.Tell("send Binding {\"result\": false, \"code\": \"net_error\"}"); // late
    product.Tell("status disconnected");
    EXPECT_TRUE(mainPage.WaitForStatus(MainPage::Disconnected));
    EXPECT_FALSE(enrolPage.IsCovered());
    product.Tell("status connected");
    EXPECT_TRUE(enrolPage.Wait(&EnrolPage::OffersUnenrolment));
    Order("binding normal");
    OpenPrompt(); // the request's values are known
    screen->Type("123456");
    screen->Press("Return");
    EXPECT_TRUE(product.AgentSays("\"binding\" : false, \"code\" : \"a1b2c3\""));
}

TEST_F(EnrolmentEndToEndTest, StartedHiddenPageAndHeaderAgreeWhenTheyAreSeen) {
    ASSERT_TRUE(product.StartAgent());
    product.StartFrontEnd({"-hide"});
    ASSERT_TRUE(product.AgentSays("received 12 OtaVersionInfo"));
    EXPECT_EQ(product.StartAgain(), 0);
    EXPECT_TRUE(mainPage.WaitForStatus(MainPage::Connected));
    EXPECT_TRUE(enrolPage.Wait(&EnrolPage::OffersUnenrolment));
}

TEST_F(EnrolmentEndToEndTest, ThePromptGoesWithWhatItIsAskedFor) {
    ASSERT_TRUE(StartEnrolled());
    OpenPrompt();
    product.Tell("status connected"); // again
    product.Tell("status disconnected");
    EXPECT_TRUE(IsUncovered());
    EXPECT_TRUE(enrolPage.Wait(&EnrolPage::OffersAction));
    product.Tell("status connected");
    ASSERT_TRUE(enrolPage.Wait(&EnrolPage::OffersUnenrolment));
    OpenPrompt();
    product.Tell("unenrol");
    EXPECT_TRUE(IsUncovered());
    EXPECT_TRUE(mainPage.WaitForStatus(MainPage::NotEnrolled));
    EXPECT_TRUE(enrolPage.Wait(&EnrolPage::OffersAction));
    EXPECT_EQ(product.AgentLines("received 3"), 0);
}

TEST_F(EnrolmentEndToEndTest, AStickFillsTheFormInOrIsRefused) {
    ASSERT_TRUE(StartUnenrolled());
    const std::string folder = product.Folder() + "/stick";
    Put("Enrollment.json", "[]");
    const bool isIn = product.PlugIn(folder);
    if (!isIn && !product.HasLauncher())
        GTEST_SKIP() << "nothing may be mounted here";
    ASSERT_TRUE(isIn);
    EXPECT_TRUE(product.WaitForLog("EnrollmentFile::FindOn"));
    EXPECT_FALSE(WaitUntil([&] { return enrolPage.IsCovered(); }, std::chrono::seconds(1)));
    product.PlugOut();
    Put("Enrollment 2.json",
        R"({"code": "a1b2c3", "account": "admin@lakeside.example", "deviceName": "stick"})");
    ASSERT_TRUE(product.PlugIn(folder));
    ASSERT_TRUE(enrolPage.Wait(&EnrolPage::IsCovered)) << "the newer of two files";
    screen->Press("Escape");
    ASSERT_TRUE(enrolPage.Wait(&EnrolPage::OffersAction));
    product.PlugOut();
    enrolPage.PressButton();
    screen->Press("Tab", {"Shift_L"});
    screen->Press("space");
    enrolPage.PressButton();
    EXPECT_TRUE(BecomesEnrolled());
    EXPECT_EQ(product.Configured("deviceName"), QLatin1String("stick"));
}

TEST_F(EnrolmentEndToEndTest, WhatHappensBehindAClosedWindowIsTold) {
    ASSERT_TRUE(StartFilled());
    Order("binding-delay 1");
    Order("binding fail error");
    enrolPage.PressButton();
    ASSERT_TRUE(product.AgentSays("received 3 Binding"));
    screen->Close(screen->Find(MainPage::Title).value());
    ASSERT_TRUE(IsHidden());
    EXPECT_TRUE(product.WaitForLog(product.HasLauncher() ? "Notifier::Notify in the tray: error ."
                                                         : "Notifier::Notify later: error ."));
    EXPECT_FALSE(screen->Find(MainPage::Title));
}

} // namespace
