// The two real programs over the real pipe, under an X server with real key and mouse events: what a
// person at the device and the agent service see of each other.
#include "EndToEndFixture.h"

#include <QCoreApplication>
#include <QFile>
#include <chrono>
#include <csignal>
#include <unistd.h>

namespace {

TEST_F(EndToEndTest, StatusOfTheServiceIsShown) {
    ASSERT_TRUE(StartBoth());
    product.Tell("status disconnected");
    EXPECT_TRUE(mainPage.WaitForStatus(MainPage::Disconnected));
    product.Tell("status connecting");
    EXPECT_TRUE(mainPage.WaitForStatus(MainPage::Connecting));
    product.Tell("status not-enrolled");
    EXPECT_TRUE(mainPage.WaitForStatus(MainPage::NotEnrolled));
}

TEST_F(EndToEndTest, RightDigitsUnlockAfterWrongOnes) {
    ASSERT_TRUE(StartBoth());
    product.Tell("lock");
    ASSERT_TRUE(lock.OpenPasswordBoxes());
    const auto firstBox = lock.FocusedBox();

    screen->Type("65432");
    EXPECT_TRUE(WaitUntil([&] { return lock.FocusedBox() > firstBox.value() + 100; }));
    screen->Type("1");
    // Shaken to rest, with the focus back in the first box and the lock still there.
    EXPECT_TRUE(WaitUntil([&] { return lock.FocusedBox() == firstBox; }));
    EXPECT_EQ(product.AgentLines("received 35"), 0);

    // A slip and its correction.
    screen->Type("129");
    screen->Press("BackSpace");
    screen->Press("BackSpace");
    screen->Type("23456");
    EXPECT_TRUE(product.AgentSays("received 35 ScreenUnlock 0 bytes"));
    EXPECT_TRUE(lock.WaitUntilGone());
    EXPECT_TRUE(mainPage.WaitForStatus(MainPage::Connected)); // the desktop is back
}

TEST_F(EndToEndTest, TimedLockHoldsUntilItsEndAndAPastEndDoesNotLock) {
    ASSERT_TRUE(StartBoth());
    product.Tell("lock 00:00");
    ASSERT_TRUE(product.WaitForLog("Screen lock still time: 00:00"));
    // Looked for until the next message has taken effect: a lock that ends at once is one too many.
    product.Tell("status disconnected");
    bool locked = false;
    EXPECT_TRUE(WaitUntil([&] {
        locked = locked || screen->Find(LockScreen::Title).has_value();
        return mainPage.ShowsStatus(MainPage::Disconnected);
    }));
    EXPECT_FALSE(locked);

    product.Tell("lock 23:59");
    ASSERT_TRUE(lock.OpenPasswordBoxes());
    EXPECT_TRUE(product.WaitForLog("Screen lock still time: 23:59"));
    screen->Type("123456");
    EXPECT_TRUE(product.AgentSays("received 35 ScreenUnlock"));
    EXPECT_TRUE(lock.WaitUntilGone());
}

TEST_F(EndToEndTest, TheServiceReleasesTheLock) {
    ASSERT_TRUE(StartBoth());
    for (const char* command : {"unlock", "reset"}) {
        SCOPED_TRACE(command);
        product.Tell("lock");
        ASSERT_TRUE(lock.Wait());
        product.Tell(command);
        EXPECT_TRUE(lock.WaitUntilGone());
    }
    EXPECT_EQ(product.AgentLines("received 35"), 0);
}

TEST_F(EndToEndTest, ANewPasswordCountsAtOnce) {
    ASSERT_TRUE(StartBoth());
    product.Tell("lock");
    ASSERT_TRUE(lock.OpenPasswordBoxes());
    const auto firstBox = lock.FocusedBox();
    product.Tell("password 000000");
    ASSERT_TRUE(product.WaitForLog("UDeviceScreenLock::OnPipeDataReceived Unlock password update: ", 2));
    screen->Type("123456");
    EXPECT_TRUE(WaitUntil([&] { return lock.FocusedBox() == firstBox; }));
    screen->Type("000000");
    EXPECT_TRUE(product.AgentSays("received 35 ScreenUnlock"));
    EXPECT_TRUE(lock.WaitUntilGone());
}

TEST_F(EndToEndTest, TheLockStaysAboveEverythingAndAgainstEveryAttempt) {
    ForeignWindow& first = foreign.emplace_back(product, "Foreign", QRect(100, 100, 900, 500));
    ASSERT_TRUE(screen->WaitForWindow("Foreign"));
    ASSERT_TRUE(StartBoth());
    product.Tell("lock");
    ASSERT_TRUE(lock.Wait());

    ForeignWindow& later = foreign.emplace_back(product, "Later", QRect(300, 200, 400, 300));
    ASSERT_TRUE(screen->WaitForWindow("Later"));
    first.Activate();
    later.Activate();
    screen->Activate(screen->Find(MainPage::Title).value());
    screen->Press("F4", {"Alt_L"});
    screen->Press("Tab", {"Alt_L"});
    screen->Press("Escape");
    screen->Close(screen->Find(LockScreen::Title).value());
    later.Raise();

    EXPECT_TRUE(lock.Wait());
    EXPECT_TRUE(product.FrontEnd().IsRunning());

    // And the keyboard is still the lock's.
    ASSERT_TRUE(lock.OpenPasswordBoxes());
    screen->Type("123456");
    EXPECT_TRUE(product.AgentSays("received 35 ScreenUnlock"));
    EXPECT_TRUE(lock.WaitUntilGone());
}

TEST_F(EndToEndTest, TheLockLeavesNoPixelOpenAtAScaleThatDoesNotDivideTheScreen) {
    product.SetScale(2.6);
    ASSERT_TRUE(StartBoth());
    product.Tell("lock");
    EXPECT_TRUE(lock.Wait());
}

TEST_F(EndToEndTest, ARestartedServiceIsFoundAgain) {
    ASSERT_TRUE(StartBoth());
    product.Agent().Kill();
    ASSERT_TRUE(product.StartAgent());
    EXPECT_TRUE(product.AgentSays("client 1 connected"));
    EXPECT_TRUE(product.AgentSays("received 0 ContextRequest 0 bytes"));
    EXPECT_TRUE(product.AgentSays("received 12 OtaVersionInfo 0 bytes"));

    product.Tell("drop");
    EXPECT_TRUE(product.AgentSays("client 2 received 0 ContextRequest 0 bytes"));
    product.Tell("raw ffffffff 02000000");
    EXPECT_TRUE(product.AgentSays("client 3 received 0 ContextRequest 0 bytes"));
    EXPECT_EQ(product.LogLines("a frame claims 4294967295 bytes"), 1);

    // A lock outlives the service that asked for it.
    product.Tell("lock");
    ASSERT_TRUE(lock.Wait());
    product.Agent().Kill();
    ASSERT_TRUE(product.StartAgent());
    EXPECT_TRUE(product.AgentSays("received 12 OtaVersionInfo"));
    ASSERT_TRUE(lock.OpenPasswordBoxes());
    screen->Type("123456");
    EXPECT_TRUE(product.AgentSays("received 35 ScreenUnlock"));
}

TEST_F(EndToEndTest, ABodyOfTheWrongTypeIsLoggedAndTheNextOneArrives) {
    ASSERT_TRUE(StartBoth());
    product.Tell("send IotStatusNotify {\"status\": []}");
    product.Tell("send ScreenLock {\"endAt\": {}}");
    product.Tell("send 12345 anything");
    product.Tell("status disconnected");
    EXPECT_TRUE(mainPage.WaitForStatus(MainPage::Disconnected));
    EXPECT_TRUE(product.WaitForLog("key 2 (IotStatusNotify) refused by MainController: "));
    EXPECT_TRUE(product.WaitForLog("key 33 (ScreenLock) refused by UDeviceScreenLock: "));
    EXPECT_FALSE(screen->Find(LockScreen::Title));
}

TEST_F(EndToEndTest, ClosingTheWindowHidesItAndASecondStartShowsIt) {
    ASSERT_TRUE(StartBoth());
    screen->Close(screen->Find(MainPage::Title).value());
    ASSERT_TRUE(IsHidden());

    EXPECT_EQ(product.StartAgain({"-hide"}), 0);
    EXPECT_TRUE(product.WaitForLog("Other instance commandline: -hide\n"));
    EXPECT_EQ(product.StartAgain({"a", "b c"}), 0);
    EXPECT_TRUE(product.WaitForLog("Other instance commandline: a b c\n"));
    EXPECT_FALSE(screen->Find(MainPage::Title));

    EXPECT_EQ(product.StartAgain(), 0);
    EXPECT_TRUE(screen->WaitForWindow(MainPage::Title));
    EXPECT_TRUE(mainPage.WaitForStatus(MainPage::Connected));
    EXPECT_EQ(product.AgentLines(" connected"), 1); // and nobody else ever came to the service
}

TEST_F(EndToEndTest, OnlyASecondStartWithoutArgumentsBringsAMinimisedWindowUp) {
    if (product.HasLauncher())
        GTEST_SKIP() << "a minimised window of Wine's is the window manager's";
    ASSERT_TRUE(StartBoth());
    product.Attack("minimise", MainPage::Title);
    ASSERT_TRUE(screen->WaitForNoWindow(MainPage::Title));
    EXPECT_EQ(product.StartAgain({"-hide"}), 0);
    EXPECT_TRUE(product.WaitForLog("Other instance commandline: -hide\n"));
    product.Tell("status disconnected");
    EXPECT_EQ(product.StartAgain({"forged\nI20260101 line"}), 0);
    EXPECT_TRUE(product.WaitForLog("Other instance commandline: forged\xEF\xBF\xBDI20260101 line\n"));
    EXPECT_FALSE(screen->Find(MainPage::Title));
    EXPECT_EQ(product.StartAgain(), 0);
    EXPECT_TRUE(mainPage.WaitForStatus(MainPage::Disconnected));
}

TEST_F(EndToEndTest, StartedHiddenTheWindowIsNeverSeenUntilASecondStart) {
    ASSERT_TRUE(product.StartAgent());
    screen->HasAnyAppeared();
    product.StartFrontEnd({"-hide", "-platform", "none"});
    ASSERT_TRUE(product.AgentSays("received 12 OtaVersionInfo"));
    EXPECT_EQ(product.StartAgain({"-hide"}), 0);
    EXPECT_TRUE(product.WaitForLog("Other instance commandline: -hide\n"));
    EXPECT_FALSE(screen->HasAnyAppeared() &&
                 !product.HasLauncher()); // a launcher may show windows of its own
    // Messages reach the hidden window's process, and the lock shows without it.
    product.Tell("lock");
    ASSERT_TRUE(lock.Wait());
    product.Tell("unlock");
    ASSERT_TRUE(lock.WaitUntilGone());
    EXPECT_FALSE(screen->Find(MainPage::Title));

    EXPECT_EQ(product.StartAgain(), 0);
    EXPECT_TRUE(mainPage.WaitForStatus(MainPage::Connected));
}

TEST_F(EndToEndTest, AKilledFrontEndLocksAgainAtItsNextStart) {
    ASSERT_TRUE(StartBoth());
    product.Tell("lock");
    ASSERT_TRUE(lock.Wait());
    product.FrontEnd().Kill();
    ASSERT_TRUE(product.AgentSays("client 1 disconnected"));
    product.Agent().Kill();
    product.StartFrontEnd();
    ASSERT_TRUE(lock.Wait()) << "before there is a service";
    EXPECT_EQ(product.LogLines("application is already running!"), 0);
    ASSERT_TRUE(product.StartAgent());
    EXPECT_TRUE(product.AgentSays("received 12 OtaVersionInfo"));
    ASSERT_TRUE(lock.OpenPasswordBoxes());
    screen->Type("123456");
    EXPECT_TRUE(product.AgentSays("received 35 ScreenUnlock"));
    EXPECT_TRUE(lock.WaitUntilGone());
}

TEST_F(EndToEndTest, ADamagedLockFileDoesNotKeepTheFrontEndFromStarting) {
    if (product.HasLauncher())
        GTEST_SKIP() << "the programs' temporary folder is not this one";
    ASSERT_TRUE(StartBoth());
    product.FrontEnd().Kill();
    QDir folder(QString::fromStdString(product.Folder()));
    const QStringList locks = folder.entryList({QStringLiteral("*.lock")}, QDir::Files);
    ASSERT_EQ(locks.size(), 1);
    int started = 1;
    for (const QByteArray& content : {QByteArray(), QByteArray(64, '\0'), QByteArray("not a number\n")}) {
        QFile file(folder.filePath(locks.first()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        file.close();
        product.StartFrontEnd();
        EXPECT_TRUE(product.AgentSays("client " + std::to_string(++started) + " received 0 ContextRequest"));
        EXPECT_EQ(product.LogLines("replaced a damaged lock file"), started - 1);
        EXPECT_EQ(product.StartAgain({"-hide"}), 0) << "an instance that answers counts";
        product.FrontEnd().Kill();
    }
    // The user's own folder that cannot be written: nothing can be locked there, and nobody answers.
    ASSERT_TRUE(product.AgentSays("disconnected"));
    product.SetVariable("XDG_RUNTIME_DIR=/proc/self");
    product.StartFrontEnd();
    EXPECT_TRUE(screen->WaitForWindow(MainPage::Title));
    EXPECT_TRUE(product.WaitForLog("cannot write its lock file in /proc/"));
}

// The open window, and the lock, only hide when they are closed; they must not keep the session from ending.
TEST_F(EndToEndTest, NeitherWindowNorLockVetoesTheEndOfTheSession) {
    if (product.HasLauncher()) {
        ASSERT_TRUE(StartBoth());
        product.Tell("lock");
        ASSERT_TRUE(lock.Wait());
        const std::string answers = product.Attack("query-end-session", LockScreen::Title);
        EXPECT_NE(answers.find("answer 1"), std::string::npos) << answers;
        EXPECT_EQ(answers.find("answer 0"), std::string::npos) << answers;
        EXPECT_EQ(answers.find("no "), std::string::npos) << answers;
        return;
    }
    ChildProcess session;
    product.Start(session, Steering::SessionManager, {});
    const auto says = [&session](const char* text) {
        return WaitUntil([&] { return session.Output().find(text) != std::string::npos; });
    };
    ASSERT_TRUE(says("\n"));
    product.SetVariable(session.Output().substr(0, session.Output().find('\n')));
    ASSERT_TRUE(StartBoth());
    product.Tell("lock");
    ASSERT_TRUE(lock.Wait());
    ASSERT_TRUE(says("client"));
    // Told to end in a session that does not end, it goes on.
    ::kill(product.FrontEnd().Id(), SIGTERM);
    session.Write("die\n");
    EXPECT_FALSE(WaitUntil([&] { return !lock.IsWhole(); }, std::chrono::milliseconds(500)));
    session.Write("end\n");
    EXPECT_TRUE(says("agreed"));
    EXPECT_EQ(session.Output().find("refused"), std::string::npos);
    session.Write("die\n");
    EXPECT_TRUE(WaitUntil([&] { return product.FrontEnd().Result() == 0; }));
}

TEST_F(EndToEndTest, AnImpostorIsRefusedAndToldNothing) {
    product.Configure("agentAccount", QLatin1String("daemon"));
    std::vector<std::string> asAnother;
    if (::geteuid() == 0 && !product.HasLauncher()) { // root is the system's own account here
        asAnother = {"setpriv", "--reuid=nobody", "--regid=nogroup", "--clear-groups", "--pdeathsig=KILL"};
        // Another user may not be able to reach this build's folder.
        const QString copy = QString::fromStdString(product.Folder()) + QStringLiteral("/agent");
        ASSERT_TRUE(QFile::copy(QStringLiteral(RYX_BIN_DIR "/ryx-agent"), copy));
        qputenv(Steering::Agent.variable, copy.toLocal8Bit());
    }
    const bool started = product.StartAgent({}, asAnother);
    if (!asAnother.empty()) // the tests behind this one start their own again
        qunsetenv(Steering::Agent.variable);
    ASSERT_TRUE(started);
    product.StartFrontEnd();

    EXPECT_TRUE(product.AgentSays("client 3 connected")); // it keeps trying
    EXPECT_EQ(product.AgentLines("received"), 0);
    EXPECT_EQ(product.LogLines("PipeConnection::Accepts refused"), 1);
    EXPECT_TRUE(screen->WaitForWindow(MainPage::Title));
    EXPECT_FALSE(mainPage.ShowsStatus(MainPage::Connected));
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
