// The pages of state and settings, opened after the service has spoken.
#include "StatusPages.h"
#include "EndToEndFixture.h"
#include "platform/system/SystemNetwork.h"

#include <QFile>

namespace {

class StatusPagesEndToEndTest : public EndToEndTest {
protected:
    bool Restart() {
        product.FrontEnd().Kill();
        product.StartFrontEnd();
        return mainPage.WaitForStatus(MainPage::Connected);
    }
    /// A file of the player's, in the folder where programs look for such.
    void Write(const char* name, const QByteArray& content) const {
        QFile file(QString::fromStdString(data) + QLatin1Char('/') + QLatin1String(name));
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly));
        file.write(content);
        file.setPermissions(file.permissions() | QFile::ExeOwner);
    }

    const StatusPages pages{product};
    const std::string data = product.Folder() + "/share";
};

TEST_F(StatusPagesEndToEndTest, AnUpdateIsOfferedAskedForOnceAndFollowed) {
    ASSERT_TRUE(StartBoth());
    product.Tell("update-course fail");
    product.Tell("update 2.0 12");
    EXPECT_TRUE(WaitUntil([&] { return pages.HasDot(); }));
    pages.OpenAbout();
    EXPECT_TRUE(product.AgentSays("received 12 OtaVersionInfo"));
    pages.Press(3, 2);
    EXPECT_TRUE(product.AgentSays("received 13 OtaUpdateRequest"));
    EXPECT_TRUE(WaitUntil([&] { return !pages.HasDot(); }));
    EXPECT_TRUE(WaitUntil([&] { return pages.Warns() && pages.HasDot(); })) << "it has failed";
    EXPECT_EQ(product.AgentLines("received 13"), 1);
    product.Tell("update-course normal");
    pages.OpenAbout();
    pages.Press(3);
    EXPECT_TRUE(WaitUntil([&] { return !pages.Warns() && !pages.HasDot(); }));
    EXPECT_TRUE(WaitUntil([&] { return !pages.Warns() && pages.HasDot(); })) << "it is ready";
    EXPECT_EQ(product.AgentLines("received 13"), 2);
}

TEST_F(StatusPagesEndToEndTest, AHeldSwitchOpensByTheKeyboardAloneAndTheLanguageStays) {
    ASSERT_TRUE(StartBoth() && product.Order("hold location"));
    pages.Press(3); // from the menu's first entry
    pages.Press(6);
    ASSERT_TRUE(WaitUntilSettled([&] { return pages.IsCovered(); }));
    screen->Type("123456");
    screen->Press("Return");
    ASSERT_TRUE(WaitUntilSettled([&] { return !pages.IsCovered(); }));
    EXPECT_EQ(product.AgentLines("switched"), 0);
    screen->Press("space");
    EXPECT_TRUE(product.AgentSays("switched on: location"));

    const QImage english = pages.LowerMenu();
    pages.Open(StatusPages::Settings);
    for (const char* key : {"Tab", "Tab", "Tab", "Down"})
        screen->Press(key);
    ASSERT_TRUE(WaitUntilSettled([&] { return pages.LowerMenu() != english; }));
    const QImage chosen = pages.LowerMenu();
    ASSERT_TRUE(Restart());
    EXPECT_TRUE(WaitUntil([&] { return pages.LowerMenu() == chosen; }));
}

TEST_F(StatusPagesEndToEndTest, TheNetworkPageNamesTheStepAtFault) {
    if (SystemNetwork::Native().Gateways().isEmpty())
        GTEST_SKIP() << "this machine has no way out of its network, which is where the check ends";
    ASSERT_TRUE(StartBoth());
    const struct {
        const char *server, *proxy, *told;
    } cases[] = {{"https://device.invalid", "direct", "[Failed] Name resolution: The name device.invalid"},
                 {"https://device.invalid", "http://127.0.0.1:1", "[Failed] Proxy: The proxy 127.0.0.1:1"},
                 {"http://127.0.0.1:1", "direct", "[Failed] Server: 127.0.0.1:1 refuses"},
                 {"", "direct", "[Failed] Service on this device: "}};
    int checks = 0;
    for (const auto& row : cases) {
        product.Configure("webServer", QString::fromLatin1(row.server));
        product.Configure("webProxy", QString::fromLatin1(row.proxy));
        ASSERT_TRUE(Restart());
        if (!*row.server)
            product.Agent().Kill();
        pages.Open(StatusPages::Network);
        ASSERT_TRUE(product.WaitForLog("NetworkCheck::BeginStep has ended", ++checks));
        pages.Press(5);
        EXPECT_TRUE(WaitUntil([&] { return screen->ClipboardText().find(row.told) != std::string::npos; }))
            << screen->ClipboardText();
    }
}

TEST_F(StatusPagesEndToEndTest, AChannelIsPlayedByTheSystemsPlayerUntilItVanishes) {
    if (product.HasLauncher())
        GTEST_SKIP() << "players are found in the registry there";
    Write("stand-in-player", "#!/bin/sh\necho \"$1\" >\"$XDG_DATA_HOME/played\"\n");
    Write("applications/stand-in.desktop",
          "[Desktop Entry]\nType=Application\nName=P\nExec=stand-in-player %u");
    Write("applications/mimeapps.list", "[Default Applications]\nx-scheme-handler/rtsp=stand-in.desktop\n");
    product.SetVariable("PATH=" + data + ":/usr/bin:/bin");
    product.SetVariable("XDG_DATA_HOME=" + data);
    ASSERT_TRUE(StartBoth());
    product.Tell("channel rtsp://127.0.0.1/hall Hall");
    ASSERT_TRUE(product.Order("channel udp://239.0.0.1:1234 Yard"));
    pages.Open(StatusPages::LiveChannels);
    pages.Press(5);
    EXPECT_TRUE(product.AgentSays("live channel played: 1"));
    QFile played(QString::fromStdString(data + "/played"));
    EXPECT_TRUE(WaitUntil([&] { return played.size() > 0; }));
    EXPECT_TRUE(played.open(QIODevice::ReadOnly) && played.readAll() == "rtsp://127.0.0.1/hall\n");
    pages.Press(1);
    EXPECT_TRUE(product.AgentSays("live channel stopped: 2")) << "there is no player for it";
    EXPECT_TRUE(WaitUntil([&] { return pages.Warns(); }));
    EXPECT_TRUE(WaitUntil([&] { return !pages.Warns(); }));
    product.Tell("no-channels");
    EXPECT_TRUE(WaitUntil([&] { return pages.Warns(); }));
}

} // namespace
