// The live channels: the list that the service tells, and what a press on a channel does.
#include "app/MainWindow.h"
#include "gallery/Scenes.h"
#include "pages/LiveChannels.h"
#include "pages/UBodyLiveChannel.h"
#include "platform/context/LanguageHelper.h"
#include "platform/link/PipeClientService.h"
#include "support/FakeService.h"
#include "widgets/UTextButton.h"
#include "widgets/UToast.h"

#include <QLabel>
#include <QUrl>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

struct FakePlayer : SystemPlayer {
    bool Open(const QUrl& address) const override {
        opened = address.toString();
        return true;
    }
    mutable QString opened;
};

struct LiveChannelPage : testing::Test {
    LiveChannelPage() {
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        link.SetServer(service.Address());
        link.Start();
        EXPECT_TRUE(QTest::qWaitFor([this] { return link.IsConnected() && service.IsConnected(); }));
    }
    ~LiveChannelPage() override { link.Stop(); }

    /// Makes the page now: what the service has said before is to be there.
    void Open() {
        page = new UBodyLiveChannel(&stage.Window(), player);
        page->resize(900, 600);
        page->show();
    }
    void List(const char* channels) {
        stage.Receive(46, "{\"liveChannelList\": [" + std::string(channels) + "]}");
    }
    /// Names, each with a mark for one that plays, in the order on the screen.
    std::string Shown() {
        std::string shown;
        for (const auto* name : page->findChildren<QLabel*>(QStringLiteral("channelName")))
            shown += name->text().toStdString() + ' ';
        for (const auto* button : page->findChildren<UTextButton*>(QStringLiteral("channelButton")))
            shown += button->text() == QLatin1String("Stop") ? '>' : '.';
        return shown;
    }
    UTextButton& Button(int number) {
        return *page->findChildren<UTextButton*>(QStringLiteral("channelButton"))[number];
    }
    void Press(int number) {
        QTest::mouseClick(&Button(number), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    LiveChannelRequest Sent() {
        FrameDecoder::Frame frame = service.Receive();
        while (frame.key == PipeKey::ContextRequest || frame.key == PipeKey::OtaVersionInfo)
            frame = service.Receive();
        EXPECT_EQ(frame.key, PipeKey::LiveChannelControl);
        LiveChannelRequest sent;
        sent.ReadFromString(frame.body);
        return sent;
    }
    QString Toast() {
        const auto toasts = stage.Window().findChildren<UToast*>();
        for (const UToast* toast : toasts)
            if (!toast->ShownMessage().isEmpty())
                return toast->ShownMessage();
        return {};
    }

    FakeService service;
    PipeClientService& link = *PipeClientService::Instance();
    Stage stage{true};
    FakePlayer player;
    UBodyLiveChannel* page = nullptr;
};

constexpr char News[] = R"({"id": 1, "operationId": 7, "name": "News", "url": "https://a.example/n"})";
constexpr char Hall[] = R"({"id": 2, "operationId": 8, "name": "Hall", "url": "rtsp://a.example/h"})";

TEST_F(LiveChannelPage, PlaysAndStopsWithTheChannelsOwnRequest) {
    List((std::string(News) + ',' + Hall + ',' + News).c_str());
    Open();
    EXPECT_EQ(Shown(), "News Hall ..");
    Press(1);
    LiveChannelRequest sent = Sent();
    EXPECT_EQ(std::to_string(sent.operationId) + sent.name + (sent.jobStatus ? '+' : '-'), "8Hall+");
    EXPECT_EQ(player.opened, QStringLiteral("rtsp://a.example/h"));
    QTest::mouseDClick(&Button(1), Qt::LeftButton); // the press is part of a double click
    QTest::mouseRelease(&Button(1), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(Shown(), "News Hall .>");
    Press(1);
    EXPECT_FALSE(Sent().jobStatus);

    link.Stop();
    player.opened.clear();
    Press(0);
    EXPECT_EQ(player.opened + QString::fromStdString(Shown()), QStringLiteral("News Hall .."));
}

TEST_F(LiveChannelPage, OpensNothingButStreamsAndWebPages) {
    Open();
    for (const char* url : {"", "file:///etc/passwd", "javascript:alert(1)", "ms-settings:", "http:",
                            "udp://", "--help", "smb://a/b", "https://a b/", "HTTPX://a/"}) {
        SCOPED_TRACE(url);
        List((R"({"id": 1, "name": "x", "url": ")" + std::string(url) + "\"}").c_str());
        Press(0);
        EXPECT_EQ(Shown(), "x .");
        EXPECT_EQ(player.opened, QString());
    }
    EXPECT_EQ(Toast(), QStringLiteral("This channel’s address cannot be played. Tell your administrator."));
}

TEST_F(LiveChannelPage, ANewListKeepsTheSelectionAndTellsWhatVanished) {
    List((std::string(News) + ',' + Hall).c_str());
    Open();
    page->activateWindow();
    Press(1);
    Button(1).setFocus();
    QWidget* selected = stage.Window().focusWidget();
    List((std::string(Hall) + ',' + News).c_str());
    EXPECT_EQ(stage.Window().focusWidget(), selected) << "it is still the hall's";
    stage.Receive(46, "no JSON");
    EXPECT_EQ(page->findChildren<UTextButton*>(QStringLiteral("channelButton")).size(), 2);

    List((R"({"id": 2, "name": "Hall", "jobStatus": true, "url": "rtsp://a.example/h"},)" + std::string(News))
             .c_str());
    List("");
    EXPECT_EQ(Toast(), QStringLiteral("The channel “Hall”, which was playing, is not offered any more."));
    EXPECT_EQ(page->findChildren<UTextButton*>(QStringLiteral("channelButton")).size(), 0);
    List(News);
    stage.Receive(2, R"({"status": 0})");
    EXPECT_TRUE(LiveChannels::OfApplication()->Channels().empty());
}

} // namespace
