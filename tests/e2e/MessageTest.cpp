// What the administrator sends, from the service's command to the screen and the disk.
#include "EndToEndFixture.h"
#include "MessageWindow.h"

#include <QFile>

namespace {

class MessageEndToEndTest : public EndToEndTest {
protected:
    /// With a web service beside the pipe, if it is wanted.
    bool StartWithWeb() {
        product.Configure("messageFileFolder", QString::fromStdString(product.PathForPrograms(in)));
        product.StartFrontEnd();
        return product.StartAgent(
                   {"--web", "0", "--web-folder", product.PathForPrograms(product.Folder() + "/web")}) &&
               mainPage.WaitForStatus(MainPage::Connected);
    }
    void Write(const char* name, const QByteArray& content) const {
        QFile file(QString::fromStdString(product.Folder() + '/' + name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    std::string File(const char* name) const {
        return product.PathForPrograms(product.Folder() + '/' + name);
    }
    bool HasArrived(const char* name, qint64 size) const {
        return WaitUntil([&] { return QFile(QString::fromStdString(in + '/' + name)).size() == size; });
    }
    QStringList Arrived() const {
        return QDir(QString::fromStdString(in)).entryList(QDir::Files | QDir::Hidden);
    }

    const std::string in = product.Folder() + "/in";
    const MessageWindow message{product};
};

TEST_F(MessageEndToEndTest, MessagesComeOneAfterTheOtherAndAreWithdrawn) {
    ASSERT_TRUE(StartBoth());
    screen->Close(screen->Find(MainPage::Title).value());
    ASSERT_TRUE(IsHidden());
    product.Tell("message one");
    ASSERT_TRUE(message.Wait());
    product.Tell("message two");
    product.Tell("emergency three");
    ASSERT_TRUE(screen->WaitForWindow(MessageWindow::Emergency));
    product.Tell("withdraw 2"); // in the queue
    product.Tell("withdraw 3"); // on screen
    ASSERT_TRUE(message.Wait());
    message.PressOk();
    EXPECT_TRUE(message.WaitUntilGone());
    EXPECT_TRUE(product.FrontEnd().IsRunning());
    product.Tell(
        "send MessageFile {\"jobStatus\": true, \"text\": \"short\", \"playDuration\": 1, \"loopTime\": 2}");
    ASSERT_TRUE(message.Wait());
    EXPECT_TRUE(message.WaitUntilGone());
    product.Tell("send MessageFile {}");
    EXPECT_TRUE(product.WaitForLog("neither a text nor a file"));
    EXPECT_FALSE(message.IsThere());
}

TEST_F(MessageEndToEndTest, WhatIsTypedGoesWhereItWentBefore) {
    if (product.HasLauncher())
        GTEST_SKIP() << "the window manager gives each new window of Wine's the focus";
    product.ConfigureUnenrolled();
    ASSERT_TRUE(product.StartBoth() && enrolPage.Open());
    product.Tell("bodies on");
    screen->Type("a1b");
    product.Tell("message do not disturb");
    ASSERT_TRUE(message.Wait());
    screen->Type("2c3");
    screen->Press("Tab");
    screen->Type("admin@lakeside.example");
    screen->Press("Tab");
    screen->Type("hall 3");
    for (int stop = 0; stop < 4; ++stop)
        screen->Press("Tab");
    screen->Press("space");
    message.PressOk();
    ASSERT_TRUE(message.WaitUntilGone());
    enrolPage.PressButton();
    EXPECT_TRUE(product.AgentSays("\"code\" : \"a1b2c3\""));
}

TEST_F(MessageEndToEndTest, WhereClosingIsForbiddenTheServiceAloneEndsIt) {
    ASSERT_TRUE(StartBoth());
    product.Tell("send MessageFile {\"operationId\": 7, \"operationRight\": false, \"text\": \"stay\"}");
    ASSERT_TRUE(message.Wait());
    const DesktopWindow window = screen->Find(MessageWindow::Title).value();
    screen->Close(window);
    screen->Click(window.place.center());
    screen->Press("Escape");
    screen->Press("F4", {"Alt_L"});
    EXPECT_FALSE(WaitUntil([&] { return !message.IsThere(); }, std::chrono::seconds(1)));
    product.FrontEnd().Kill();
    ASSERT_TRUE(screen->WaitForNoWindow(MessageWindow::Title));
    product.StartFrontEnd(); // the unread one is there again
    ASSERT_TRUE(message.Wait());
    ASSERT_TRUE(mainPage.WaitForStatus(MainPage::Connected));
    product.Tell("send MessageFile {\"operationId\": 7, \"jobStatus\": false}");
    EXPECT_TRUE(message.WaitUntilGone());
}

TEST_F(MessageEndToEndTest, ALockLiesOverMessagesAndTheyAreThereAfterIt) {
    ASSERT_TRUE(StartBoth());
    product.Tell("message before");
    ASSERT_TRUE(message.Wait());
    product.Tell("lock");
    ASSERT_TRUE(lock.OpenPasswordBoxes());
    screen->Type("123");
    product.Tell("emergency during");
    EXPECT_FALSE(WaitUntil([&] { return !lock.IsWhole(); }, std::chrono::seconds(2)));
    screen->Type("456");
    EXPECT_TRUE(product.AgentSays("received 35 ScreenUnlock"));
    ASSERT_TRUE(lock.WaitUntilGone());
    EXPECT_TRUE(screen->WaitForWindow(MessageWindow::Emergency));
}

TEST_F(MessageEndToEndTest, FilesArriveWholeUnderHarmlessNames) {
    ASSERT_TRUE(StartWithWeb());
    Write("plan", QByteArray(500000, 'p'));
    product.Tell("web file half once");
    product.Tell("file " + File("plan") + " ..\\..\\CON .exe");
    EXPECT_TRUE(HasArrived("_CON.exe", 500000));
    product.Tell("file " + File("plan") + " ../_CON.exe");
    EXPECT_TRUE(HasArrived("_CON (2).exe", 500000));
    product.Tell("web file huge");
    product.Tell("file " + File("plan") + " huge.pdf");
    EXPECT_TRUE(product.WaitForLog("the file is larger than 1073741824 bytes"));
    EXPECT_TRUE(Arrived().filter(QStringLiteral("huge")).isEmpty());
}

TEST_F(MessageEndToEndTest, ClockAndWallpaperFollowTheService) {
    const std::string settings = product.Folder() + "/config";
    product.SetVariable("XDG_CONFIG_HOME=" + settings);
    product.SetVariable("GSETTINGS_BACKEND=keyfile");
    ASSERT_TRUE(StartBoth());
    Write("wall 1.png", "no matter");
    product.Tell("wallpaper fit " + File("gone.png"));
    EXPECT_TRUE(product.WaitForLog("ProcessDeviceSettingWallpaper SetWallpaper failed, file not exists: "));
    product.Tell("clock 12");
    product.Tell("wallpaper center " + File("wall 1.png"));
    if (product.HasLauncher()) {
        EXPECT_TRUE(product.WaitForLog("ProcessDeviceSettingWallpaper SetWallpaper CoCreateInstance failed"));
        return;
    }
    const auto value = [&](const char* key) {
        QFile file(QString::fromStdString(settings + "/glib-2.0/settings/keyfile"));
        const QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        return text.contains(QLatin1String(key));
    };
    const std::string uri = "='file://" + product.Folder() + "/wall%201.png'";
    EXPECT_TRUE(WaitUntil([&] { return value(("picture-uri-dark" + uri).c_str()); }));
    EXPECT_TRUE(value(("picture-uri" + uri).c_str()));
    EXPECT_TRUE(value("picture-options='centered'"));
    EXPECT_TRUE(value("clock-format='12h'"));
    product.Tell("clock 24");
    EXPECT_TRUE(WaitUntil([&] { return value("clock-format='24h'"); }));
    product.Tell("wallpaper");
    EXPECT_TRUE(product.WaitForLog("changes nothing"));
}

} // namespace
