// The about page over a real link: updates, as they were told before it was opened, and the link's trace.
#include "app/MainWindow.h"
#include "app/Pages.h"
#include "app/UMenu.h"
#include "entity/UpdateEntities.h"
#include "gallery/Scenes.h"
#include "pages/UBodyAbout.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/link/PipeClientService.h"
#include "support/FakeService.h"

#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

constexpr char Offer[] =
    R"({"hasUpdate": true, "versionCode": "2.0", "downloadUrl": "https://u/2", "fileMd5": "f"})";
constexpr char Forced[] = R"({"hasUpdate": true, "versionCode": "2.0", "isForceUpdate": true})";
constexpr char Silent[] = R"({"hasUpdate": true, "versionCode": "2.0", "isSilentDownload": true})";
constexpr char Half[] = R"({"finish": false, "progress": 50, "dltotal": 9})";
constexpr char Failed[] = R"({"finish": true, "success": false})";

struct AboutPage : testing::Test {
    AboutPage() {
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        link.SetServer(service.Address());
        link.Start();
        EXPECT_TRUE(QTest::qWaitFor([this] { return link.IsConnected() && service.IsConnected(); }));
    }
    ~AboutPage() override { link.Stop(); }

    void Open() { stage.Window().findChild<UMenu*>()->SwitchTo(PageIndex(PageId::About)); }
    QWidget& Page() { return *stage.Window().findChild<UBodyAbout*>(); }
    QPushButton& Button(const char* name) {
        return *stage.Window().findChild<QPushButton*>(QLatin1String(name));
    }
    /// The state, and the buttons that can be pressed.
    std::string Shown() {
        std::string shown = Page().findChild<QLabel*>(QStringLiteral("updateState"))->text().toStdString();
        for (const char* name : {"updateNow", "updateLater", "updateCheck"})
            if (!Button(name).isHidden() && Button(name).isEnabled())
                shown += " [" + Button(name).text().toStdString() + ']';
        return shown;
    }
    bool HasDot() {
        return !stage.Window()
                    .findChild<QPushButton*>(QStringLiteral("menu_about"))
                    ->accessibleDescription()
                    .isEmpty();
    }
    void FireStall() {
        QMetaObject::invokeMethod(qApp->findChild<QTimer*>(QStringLiteral("updateStallTimer")), "timeout");
    }
    /// The next message with this key; those before it are counted.
    std::string Sent(PipeKey key, int* before = nullptr) {
        FrameDecoder::Frame frame = service.Receive();
        for (; frame.key != key && frame.key != static_cast<PipeKey>(-1); frame = service.Receive())
            if (before)
                ++*before;
        EXPECT_EQ(frame.key, key);
        return frame.body;
    }

    FakeService service;
    PipeClientService& link = *PipeClientService::Instance();
    Stage stage{true};
};

TEST_F(AboutPage, OpenedFirstAfterItsMessagesItShowsWhatTheyMean) {
    struct Case {
        std::vector<std::pair<int, const char*>> messages;
        const char* shown;
        bool dot;
    };
    const Case cases[] = {
        {{}, "Waiting for the service … [Check again]", false},
        {{{12, R"({"hasUpdate": false})"}}, "This program is up to date. [Check again]", false},
        {{{12, Offer}}, "Version 2.0 is available. [Update now] [Later]", true},
        {{{12, Offer}, {12, "{}"}, {12, "[]"}, {12, "x"}, {14, "{}"}},
         "Version 2.0 is available. [Update now] [Later]",
         true},
        {{{12, Forced}},
         "Version 2.0 is available. Your organisation wants it to be installed. [Update now]",
         true},
        {{{12, Silent}},
         "Version 2.0 is available. The service installs it by itself; there is nothing to do. [Check again]",
         false},
        {{{12, Offer}, {14, Half}, {12, Offer}}, "Downloading: 50 %", false},
        {{{12, Offer}, {14, R"({"finish": false, "progress": 7, "dlcurrent": 2048})"}},
         "Downloading: 2.0 kB so far",
         false},
        {{{12, Offer}, {14, Half}, {12, R"({"hasUpdate": true, "versionCode": "3.0"})"}},
         "Version 3.0 is available. [Update now] [Later]",
         true},
        {{{12, Offer}, {14, R"({"finish": true, "success": true})"}},
         "The update is downloaded. The service installs it. [Check again]",
         true},
        {{{12, Offer}, {14, Failed}, {12, Offer}}, "The update failed. [Try again]", true},
        {{{14, Failed}}, "The update failed. [Check again]", true},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.shown);
        stage.Receive(12, R"({"hasUpdate": false})"); // nothing of the case before counts
        AppContextData::Instance()->SetEnrolled(false);
        AppContextData::Instance()->SetEnrolled(true);
        for (const auto& [key, body] : row.messages)
            stage.Receive(key, body);
        Open();
        EXPECT_EQ(Shown(), row.shown);
        EXPECT_EQ(HasDot(), row.dot);
    }
}

TEST_F(AboutPage, AsksOnceAndSaysWhenNothingMoves) {
    stage.Receive(12, Offer);
    Sent(PipeKey::OtaVersionInfo); // as the link came up
    Open();
    Sent(PipeKey::OtaVersionInfo); // as the page was opened
    stage.Window().activateWindow();
    Button("updateLater").setFocus();
    for (int i = 0; i < 2; ++i) // the second press meets nothing
        QTest::keyClick(stage.Window().windowHandle(), Qt::Key_Space);
    EXPECT_EQ(Shown(), "Version 2.0 is available. [Update now]");
    EXPECT_FALSE(HasDot());
    Button("updateNow").setFocus();
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(stage.Window().windowHandle(), Qt::Key_Space);
    OtaUpdateDataRequest request;
    request.ReadFromString(Sent(PipeKey::OtaUpdateRequest));
    EXPECT_TRUE(request.isNeedUpdate);
    EXPECT_EQ(request.versionCode + request.apkUrl + request.fileMd5, "2.0https://u/2f");
    EXPECT_EQ(Shown(), "The service was asked to update. Waiting for it …");

    stage.Receive(14, Half);
    FireStall();
    stage.Receive(14, Half); // which is no progress
    EXPECT_EQ(Shown(), "Downloading: 50 %\nNothing has moved for a minute. [Try again]");
    stage.Receive(14, R"({"finish": false, "progress": 51, "dltotal": 9})");
    EXPECT_EQ(Shown(), "Downloading: 51 %");
    stage.Receive(14, Failed);
    Button("updateNow").click();
    int before = 0;
    Sent(PipeKey::OtaUpdateRequest, &before);
    EXPECT_EQ(before, 0) << "the second press was sent, too";

    service.Drop();
    ASSERT_TRUE(QTest::qWaitFor([] { return !AppContextData::Instance()->Linked(); }));
    const auto notes = Page().findChildren<QLabel*>(QStringLiteral("pageNote"));
    EXPECT_TRUE(std::any_of(notes.begin(), notes.end(), [](const QLabel* note) {
        return note->isVisible() && note->text().startsWith(QLatin1String("The link to the service dropped"));
    }));
}

TEST_F(AboutPage, TheTraceTellsTheLastMessagesAndNothingThatStoodInThem) {
    stage.Receive(10, "oldest");
    for (int i = 0; i < 600; ++i)
        stage.Receive(74, "secret network");
    link.Send(PipeKey::FeaturesPopupsCommand, "secret wish");
    Open();
    Button("supportTrace").click();
    const QString trace =
        stage.Window().findChild<QPlainTextEdit*>(QStringLiteral("textView"))->toPlainText();
    EXPECT_EQ(trace.count(QLatin1Char('\n')), 500);
    EXPECT_TRUE(trace.contains(QLatin1String("  received  74 DisconnectWifi  14 bytes\n")));
    EXPECT_TRUE(trace.contains(QLatin1String("  sent      48 FeaturesPopupsCommand  11 bytes\n")));
    EXPECT_FALSE(trace.contains(QLatin1String("secret")) || trace.contains(QLatin1String("UnlockPassword")));
    Button("textCopy").click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), trace);
}

} // namespace
