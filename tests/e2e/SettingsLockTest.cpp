// The lock over the system's settings: real processes, keys, touches and pixels.
#include "EndToEndFixture.h"

#include <QFile>

namespace {

TEST_F(EndToEndTest, GuessingTheSettingsPasswordIsSlowed) {
    ASSERT_TRUE(StartBoth());
    product.Tell("settings-lock");
    for (int attempt = 1; attempt <= 6; ++attempt) {
        ASSERT_TRUE(mask.Wait()) << attempt;
        screen->Type("111111");
        screen->Press("Return");
        ASSERT_TRUE(product.WaitForLog("input password eorr cout is :" + std::to_string(attempt)));
    }
    ASSERT_TRUE(WaitUntil([&] { return mask.IsLockedOut(); }));
    const QImage lockedOut = screen->Screenshot();
    for (int digit = 1; digit <= 6; ++digit) {
        screen->Type(std::to_string(digit));
        mask.Touch(digit);
    }
    // Time alone does not release it; coming back does.
    EXPECT_FALSE(WaitUntil([&] { return !mask.IsLockedOut(); }, std::chrono::seconds(62)));
    EXPECT_EQ(screen->Screenshot(), lockedOut) << "a digit has got through";
    screen->Press("Escape");
    ASSERT_TRUE(mask.WaitUntilGone());
    EXPECT_EQ(product.AgentLines("received 79"), 0);
    product.Tell("settings-lock");
    ASSERT_TRUE(mask.Wait());
    for (int digit = 1; digit <= 6; ++digit)
        mask.Touch(digit);
    ASSERT_TRUE(mask.WaitUntilFilled());
    screen->Press("Return");
    EXPECT_TRUE(product.AgentSays("received 79 SettingsLockUnlock 0 bytes"));
    EXPECT_TRUE(mask.WaitUntilGone());
}

TEST_F(EndToEndTest, SettingsMaskAndScreenLockTakeNothingFromEachOther) {
    ASSERT_TRUE(StartBoth());
    product.Tell("settings-lock");
    ASSERT_TRUE(mask.Wait());
    product.Tell("lock"); // over the mask
    ASSERT_TRUE(lock.OpenPasswordBoxes());
    screen->Type("123456");
    EXPECT_TRUE(product.AgentSays("received 35 ScreenUnlock"));
    ASSERT_TRUE(mask.Wait());
    screen->Type("123456");
    screen->Press("Return");
    EXPECT_TRUE(product.AgentSays("received 79 SettingsLockUnlock"));
    ASSERT_TRUE(mask.WaitUntilGone());

    product.Tell("lock"); // and with the mask coming below it
    ASSERT_TRUE(lock.OpenPasswordBoxes());
    screen->Type("123");
    for (const char* command : {"settings-lock", "settings-unlock", "settings-lock"}) {
        product.Tell(command);
        const bool comes = std::string(command) == "settings-lock";
        EXPECT_TRUE(WaitUntil([&] {
            EXPECT_TRUE(lock.IsWhole()) << "the mask flashes up";
            return screen->Find(SettingsMask::Title).has_value() == comes;
        }));
    }
    screen->Type("456");
    EXPECT_TRUE(product.AgentSays("received 35 ScreenUnlock"));
    ASSERT_TRUE(mask.Wait());
    screen->Type("123456");
    screen->Press("Return");
    EXPECT_TRUE(product.AgentSays("received 79 SettingsLockUnlock"));
    EXPECT_TRUE(mask.WaitUntilGone());
}

TEST_F(EndToEndTest, TheSettingsMaskGoesByTheServiceAndWithoutIt) {
    ASSERT_TRUE(StartBoth());
    product.Tell("settings-lock");
    ASSERT_TRUE(mask.Wait());
    product.Tell("settings-unlock");
    ASSERT_TRUE(mask.WaitUntilGone());
    EXPECT_TRUE(mainPage.WaitForStatus(MainPage::Connected)); // the desktop is back
    product.Tell("settings-lock");
    ASSERT_TRUE(mask.Wait());
    product.Agent().Kill();
    ASSERT_TRUE(mask.Wait());
    screen->Type("123456");
    screen->Press("Return");
    EXPECT_TRUE(mask.WaitUntilGone());
}

TEST_F(EndToEndTest, WatchingForNoControlPanelTakesNoProcessorTime) {
    if (product.HasLauncher())
        GTEST_SKIP() << "the process that is seen here is the launcher's";
    ASSERT_TRUE(StartBoth());
    product.Tell("control-panel");
    ASSERT_TRUE(product.WaitForLog("m_pid,GetControlPanelPid is:0"));
    const auto ticks = [this] { // of user and system time, a hundredth of a second each
        QFile file(QStringLiteral("/proc/%1/stat").arg(product.FrontEnd().Id()));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QList<QByteArray> fields = file.readAll().split(')').last().split(' ');
        return fields.at(12).toInt() + fields.at(13).toInt();
    };
    const int before = ticks();
    EXPECT_FALSE(WaitUntil([&] { return ticks() > before + 10; }, std::chrono::seconds(2)));
}

} // namespace
