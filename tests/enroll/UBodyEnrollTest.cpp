// The enrolment page: what a user enters and presses, what the service says.
#include "EnrolmentPageFixture.h"
#include "app/UMenu.h"

namespace {

TEST_F(EnrolmentPage, ChecksInOrderAndSendsWhatWasEntered) {
    const struct {
        const char *code, *account, *name, *prefix, *suffix;
        bool agreed;
        const char* wrong; ///< "none": a request was sent; empty: none was, and nothing is marked
        const char* sent = "";
    } cases[] = {
        {"", "", "", nullptr, nullptr, false, "schoolCode "},
        {"12345", Account, "n", nullptr, nullptr, true, "schoolCode "},
        {"1234567", Account, "n", nullptr, nullptr, true, "schoolCode "},
        {Code, "", "", nullptr, nullptr, true, "adminAccount "},
        {Code, "a+b@c.de", "n", nullptr, nullptr, true, "adminAccount "},
        {Code, "a@b", "n", nullptr, nullptr, true, "adminAccount "},
        {Code, " a@b.c", "n", nullptr, nullptr, true, "adminAccount "},
        {Code, "a@b.c ", "n", nullptr, nullptr, true, "adminAccount "},
        {Code, Account, "", nullptr, nullptr, true, "deviceName "},
        {Code, Account, "n", "", "", true, "deviceName "},
        {Code, Account, "  ", nullptr, nullptr, true, "deviceName "},
        {Code, Account, "n", nullptr, nullptr, false, ""},
        {Code, Account, "Hall 3", nullptr, nullptr, true, "none", "Hall 3"},
        {Code, Account, "", "Lab ", "7", true, "none", "Lab 7"},
        {Code, "A@b.c", "", "", "7", true, "none", "7"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(std::string(row.code) + ' ' + row.account + ' ' + row.name);
        Start(false);
        Edit("schoolCode").setText(QLatin1String(row.code));
        Edit("adminAccount").setText(QLatin1String(row.account));
        Edit("deviceName").setText(QLatin1String(row.name));
        if (row.prefix) {
            Press(*Page().findChild<QWidget*>(QStringLiteral("nameSwitch")));
            Edit("devicePrefix").setText(QLatin1String(row.prefix));
            Edit("deviceSuffix").setText(QLatin1String(row.suffix));
        }
        AddTag("first");
        AddTag("second");
        Agree(row.agreed);
        for (int click = 0; click < 5; ++click)
            Press(Button());
        const bool sent = row.wrong == std::string("none");
        EXPECT_EQ(Marked(), sent ? "" : row.wrong);
        EXPECT_EQ(IsWaiting(), sent);
        const QWidget* tip = stage->Window().findChild<QWidget*>(QStringLiteral("UTip"));
        EXPECT_EQ(tip && tip->isVisible(), !row.agreed && !*row.wrong);
        if (!sent)
            continue;
        const DeviceBindingParam request = Request();
        EXPECT_EQ(request.code + request.email, std::string(row.code) + row.account);
        EXPECT_EQ(request.deviceName, row.sent);
        EXPECT_EQ(request.tags, (std::vector<std::string>{"first", "second"}));
        EXPECT_TRUE(request.binding && !request.hasAuto && request.sn.empty());
    }
    EXPECT_TRUE(link.Send(PipeKey::ContextRequest));
    EXPECT_EQ(service.Receive().key, PipeKey::ContextRequest) << "and nothing was sent twice";
}

TEST_F(EnrolmentPage, LeavingAFieldJudgesItAndEveryAnswerCanBeCorrected) {
    Start(false);
    stage->Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&stage->Window()));
    Edit("schoolCode").setFocus();
    QTest::keyClicks(&Edit("schoolCode"), QStringLiteral("1234567"));
    EXPECT_EQ(Marked(), "");
    Edit("adminAccount").setFocus();
    EXPECT_EQ(Marked(), "schoolCode ");
    QTest::keyClicks(&Edit("adminAccount"), QStringLiteral("a+b@c.de"));
    Edit("schoolCode").setFocus();
    EXPECT_EQ(Marked(), "schoolCode adminAccount ");
    Edit("adminAccount").setFocus();
    Edit("adminAccount").setCursorPosition(2);
    QTest::keyClick(&Edit("adminAccount"), Qt::Key_Backspace);
    Edit("schoolCode").setFocus();
    QTest::keyClick(&Edit("schoolCode"), Qt::Key_Backspace);
    Edit("deviceName").setFocus();
    EXPECT_EQ(Marked(), "");
    EXPECT_EQ(Edit("adminAccount").text() + Edit("schoolCode").text(), QStringLiteral("ab@c.de123456"));
    QTest::keyClick(&Edit("deviceName"), Qt::Key_Tab);
    EXPECT_EQ(Marked(), "deviceName ");
    AddTag("x");
    Edit("deviceName").setFocus();
    stage->Window().findChild<UMenu*>()->SwitchTo(PageIndex(PageId::Network));
    stage->Window().findChild<UMenu*>()->SwitchTo(PageIndex(PageId::Enrolment));
    EXPECT_EQ(Marked(), "") << "gone with the page";
    EXPECT_EQ(Edit("schoolCode").text(), QStringLiteral("123456"));
    EXPECT_TRUE(Page().findChild<QWidget*>(QStringLiteral("DeviceTagsItem"))) << "tags stay";
}

TEST_F(EnrolmentPage, EveryFailureIsShown) {
    const struct {
        const char* code;
        const char* marked;
        const char* toast;
        const char* dialog = "";
    } cases[] = {
        {"r_802001", "schoolCode adminAccount ", "Code and e-mail address do not belong together."},
        {"r_802002", "schoolCode adminAccount ", "Code and e-mail address do not belong together."},
        {"r_802003", "schoolCode adminAccount ", "Code and e-mail address do not belong together."},
        {"error", "", "error ."},
        {"170002", "", "The management service cannot be reached. Check the network."},
        {"170004", "", "The management service cannot be reached. Check the network."},
        {"net_error", "", "Unable to bind.", "UBodyEnrollModal"},
        {"", "", "Unable to bind."},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.code);
        Start(false);
        SendRequest();
        Receive(3, Result(false, row.code));
        EXPECT_EQ(Marked(), row.marked);
        EXPECT_EQ(Toast(), row.toast);
        EXPECT_EQ(Overlay(), row.dialog);
        EXPECT_FALSE(IsWaiting());
        EXPECT_EQ(State(), 0);
        EXPECT_EQ(Known(), "0   Lecture hall 3 0");
        EXPECT_EQ(Page().findChildren<QWidget*>(QStringLiteral("DeviceTagsItem")).size(), 2);

        Start(true);
        ReceiveStatus(2);
        QMetaObject::invokeMethod(&Page(), "OnUnBindingDevice");
        EXPECT_TRUE(Button().IsLoading());
        Receive(3, Result(false, row.code));
        EXPECT_EQ(Toast(), "Unable to UnEnroll.");
        EXPECT_EQ(Overlay(), row.dialog);
        EXPECT_TRUE(!*row.dialog || Retry().text() == QStringLiteral("Unenrol this device"));
        EXPECT_FALSE(IsWaiting());
        EXPECT_EQ(State(), 2);
    }
}

TEST_F(EnrolmentPage, EveryWaitEnds) {
    const std::string before = "0   Lecture hall 3 0";
    const std::string after = std::string("1 ") + Code + ' ' + Account + " Hall 3 2";
    const struct {
        int key; ///< 0: the link drops
        std::string body;
        int state;
        std::string known;
        std::string late = {}; ///< known when the link is back, with the status in `body`, and then with 2
    } cases[] = {
        {3, Result(true), 2, after},
        {3, "{\"result\": []}", 0, before},
        {3, "no JSON", 0, before},
        {2, "{\"status\": 0}", 0, before},
        {2, "{\"status\": 2}", 2, after},
        {2, "{\"status\": 4}", 1, after},
        {2, "{\"status\": 5}", 1, after},
        {0, "{\"status\": 4}", 0, before, after},
        {0, "{\"status\": 0}", 0, before, "1   Lecture hall 3 0"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(std::to_string(row.key) + row.body);
        Start(false);
        SendRequest();
        for (const char* unfitting : {"{\"status\": 3}", "{\"status\": 6}"})
            Receive(2, unfitting);
        Receive(5, "{\"name\": \"other\"}");
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("de"));
        QCoreApplication::processEvents();
        EXPECT_EQ(Button().text(), QStringLiteral("Registrieren"));
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        EXPECT_TRUE(IsWaiting());
        if (row.key != 0) {
            Receive(row.key, row.body);
        } else {
            service.Drop();
            ASSERT_TRUE(QTest::qWaitFor([&] { return !Button().IsLoading(); }));
            EXPECT_EQ(Overlay(), "UBodyEnrollModal");
        }
        EXPECT_FALSE(IsWaiting());
        EXPECT_EQ(State(), row.state);
        EXPECT_EQ(Known(), row.known);
        EXPECT_EQ(Edit("schoolCode").isReadOnly(), row.state != 0);
        Receive(3, Result(false, "error")); // a late one
        EXPECT_EQ(Known(), row.known);
        EXPECT_NE(Toast(), "error .");
        if (row.key == 0) {
            ASSERT_TRUE(QTest::qWaitFor([&] { return link.IsConnected() && service.IsConnected(); }));
            Press(Retry());
            EXPECT_TRUE(IsWaiting());
            service.Drop();
            ASSERT_TRUE(QTest::qWaitFor([&] { return !Button().IsLoading() && link.IsConnected(); }));
            Receive(2, row.body);
            ReceiveStatus(2);
            EXPECT_EQ(Known(), row.late);
        }
    }
    link.Stop();
    Start(false);
    Fill();
    Press(Button());
    EXPECT_FALSE(IsWaiting()) << "the link is down already";
    EXPECT_EQ(Overlay(), "UBodyEnrollModal");
    ReceiveStatus(2);
    EXPECT_EQ(Known(), "1   Lecture hall 3 0") << "what was not sent is nobody's";
}

TEST_F(EnrolmentPage, TheServicesWordIsTaken) {
    const std::string start = "1 A1B2C3 admin@school.example Lecture hall 3 2";
    const struct {
        int status; ///< before
        int key;
        const char* body;
        int state;
        std::string known;
    } cases[] = {
        {2, 5, R"({"name": "New"})", 2, "1 A1B2C3 admin@school.example New 2"},
        {2, 5, "{", 2, start},
        {2, 5, R"({"name": {}})", 2, start},
        {2, 5, R"({"operationId": 7})", 2, start},
        {2, 6, R"({"tags": ["a", "b", "c"]})", 2, "1 A1B2C3 admin@school.example Lecture hall 3 3"},
        {2, 6, R"({"tags": null})", 2, "1 A1B2C3 admin@school.example Lecture hall 3 0"},
        {2, 6, "", 2, start},
        {2, 6, R"({"tags": [{}]})", 2, start},
        {2, 7, R"({"email": "b@c.d"})", 2, "1 A1B2C3 b@c.d Lecture hall 3 2"},
        {2, 7, "[]", 2, start},
        {4, 5, R"({"name": "New"})", 1, start},
        {2, 4, "", 0, "0    0"},
        {2, 4, "no JSON", 0, "0    0"},
        {2, 4, R"({"result": []})", 0, "0    0"},
        {2, 4, R"({"result": true})", 0, "0    0"},
        {2, 4, "{}", 0, "0    0"},
        {2, 4, "null", 0, "0    0"},
        {2, 4, R"({"result": false})", 2, start},
        {2, 4, R"({"code": "error"})", 2, start},
        {2, 2, R"({"status": 0})", 0, "0    0"},
        {4, 4, "", 1, start},
        {0, 9, R"({"code": "c", "adminAccount": "d@e.f", "tag": "t", "name": "n"})", 0, "1 c d@e.f n 1"},
        {0, 9, R"({"code": "error"})", 0, "0   Lecture hall 3 0"},
        {0, 9, R"({"code": []})", 0, "0   Lecture hall 3 0"},
        {2, 9, R"({"code": "c", "adminAccount": "d@e.f"})", 2, start},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(std::to_string(row.key) + ' ' + row.body);
        Start(row.status != 0);
        ReceiveStatus(row.status);
        Receive(row.key, row.body);
        EXPECT_EQ(Known(), row.known);
        EXPECT_EQ(State(), row.state);
        EXPECT_EQ(Button().property("isEnroll").toBool(), row.state == 2);
        EXPECT_EQ(Edit("deviceName").isReadOnly(), row.state != 0);
        EXPECT_FALSE(IsWaiting());
        if (row.state != 0) {
            EXPECT_EQ(Edit("deviceName").text().toStdString(), AppContextData::Instance()->DeviceName());
            EXPECT_EQ(Page().findChildren<QWidget*>(QStringLiteral("DeviceTagsItem")).size(),
                      static_cast<int>(AppContextData::Instance()->DeviceTags().size()));
        }
        Press(Button()); // whatever it says, it does
        EXPECT_EQ(Overlay() == "UBodyUnbindModal", row.state == 2);
        ReceiveStatus(row.status); // again
        EXPECT_EQ(Overlay() == "UBodyUnbindModal", row.state == 2);
    }
}

TEST_F(EnrolmentPage, ShownLateItKnowsWhatTheServiceHasSaid) {
    for (const auto& [enrolled, status, state] :
         {std::tuple{true, -1, 1}, {true, 2, 2}, {true, 4, 1}, {false, -1, 0}, {false, 2, 2}, {true, 0, 0}}) {
        SCOPED_TRACE(std::to_string(enrolled) + std::to_string(status));
        stage.reset();
        stage = std::make_unique<Stage>(enrolled);
        MainWindow hidden;
        if (status >= 0)
            ReceiveStatus(status);
        hidden.show();
        hidden.OpenEnrolmentPage();
        const auto* button = hidden.findChild<UTextButton*>(QStringLiteral("bindButton"));
        EXPECT_EQ(button->property("ButtonState").toInt(), state);
        EXPECT_EQ(static_cast<int>(hidden.KnownLinkStatus()), status >= 0 ? status : enrolled ? 4 : 0);
    }
}

} // namespace
