#include "ScreenLockFixture.h"

#include <QMenu>
#include <QScreen>
#include <QSignalSpy>

TEST_F(ScreenLock, CoversThePrimaryScreenAboveEverything) {
    QSignalSpy visible(lock.get(), &UDeviceScreenLock::VisibleChanged);
    Lock();
    EXPECT_TRUE(lock->isVisible());
    EXPECT_EQ(windows.facts[lock->winId()]->place, windows.screens.first());
    EXPECT_EQ(lock->property("TopLevel").toInt(), 6);
    EXPECT_TRUE(lock->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(lock->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(windows.order.empty());
    ASSERT_EQ(visible.count(), 1);
    EXPECT_TRUE(visible[0][0].toBool());
    EXPECT_TRUE(ShowsMessage());
    EXPECT_FALSE(ShowsPad());

    lock->close(); // Alt+F4
    EXPECT_TRUE(lock->isVisible());
    EXPECT_EQ(windows.guarded.count(lock->winId()), 1u);
    EXPECT_EQ(input.keyboard, lock->windowHandle());
    lock->hide();
    EXPECT_EQ(input.keyboard, nullptr);
}

// Run once more with a system locale that has digits of its own.
TEST_F(ScreenLock, EndTimesAreComparedAsTextAndTold) {
    struct Case {
        const char* now;
        const char* endAt;
        bool locks;
    };
    int messages = 0;
    for (const Case& c : {Case{"10:00", "10:01", true},
                          {"10:00", "10:00", false},
                          {"10:00", "09:59", false},
                          {"23:50", "00:30", false},
                          {"00:00", "23:59", true},
                          {"10:00", "", true},
                          {"10:00", "9:59", false}, // no time of day
                          {"10:00", "24:00", false},
                          {"10:00", "<b>18:00</b>", false},
                          {"10:00", "18:00\n", false}}) {
        clock.time = QString::fromLatin1(c.now);
        Lock(c.endAt);
        EXPECT_EQ(lock->isVisible(), c.locks) << c.endAt << " at " << c.now;
        EXPECT_EQ(log.Count("Screen lock still time: "), ++messages);
        if (c.locks) {
            EXPECT_EQ(Message().contains(QString::fromLatin1(c.endAt)), true);
        }
        link.Deliver(PipeKey::ScreenLockReset, "");
        EXPECT_FALSE(lock->isVisible());
    }
}

TEST_F(ScreenLock, OwnPopupsGoBeforeTheLockComesAndWhileItIsThere) {
    QMenu menu;
    menu.addAction(QStringLiteral("entry"));
    menu.popup(QPoint());
    ASSERT_TRUE(menu.isVisible());
    Lock();
    EXPECT_FALSE(menu.isVisible());
    menu.popup(QPoint());
    Expire(*lock->findChild<QTimer*>(QStringLiteral("coverTimer")));
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(ScreenLock, TheFocusIsFetchedBackInTheLocksOwnSecond) {
    Lock();
    ASSERT_TRUE(QTest::qWaitForWindowActive(lock.get()));
    QWidget other;
    other.show();
    // An activation that the lock is never told of.
    lock->removeEventFilter(lock->findChild<TopmostCover*>());
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    Expire(*lock->findChild<QTimer*>(QStringLiteral("coverTimer")));
    EXPECT_TRUE(QTest::qWaitForWindowActive(lock.get()));
}

TEST_F(ScreenLock, ATimedLockEndsByItself) {
    Lock("10:30");
    Expire(UnlockTimer());
    EXPECT_TRUE(lock->isVisible());
    clock.time = QStringLiteral("10:29");
    Expire(UnlockTimer());
    EXPECT_TRUE(lock->isVisible());
    clock.time = QStringLiteral("10:30");
    Expire(UnlockTimer());
    EXPECT_FALSE(lock->isVisible());

    Lock();
    Expire(UnlockTimer());
    EXPECT_TRUE(lock->isVisible()) << "without an end time there is no end";
}

TEST_F(ScreenLock, AnIdleUserFindsATimedLockAgainUntilItsEnd) {
    LockAndOpenPad("18:00");
    Type(QStringLiteral("123456"));
    EXPECT_FALSE(lock->isVisible());
    EXPECT_EQ(Idle().findChild<QTimer*>()->interval(), 1200 * 1000);
    clock.time = QStringLiteral("17:59");
    ExpireIdle();
    EXPECT_TRUE(lock->isVisible());
    EXPECT_TRUE(ShowsMessage());

    LockAndOpenPad("18:00");
    EXPECT_FALSE(Idle().IsActive());
    Type(QStringLiteral("123456"));
    clock.time = QStringLiteral("18:00");
    ExpireIdle();
    EXPECT_FALSE(lock->isVisible());
}

TEST_F(ScreenLock, TheServiceReleasesAndChangesThePassword) {
    Lock("18:00");
    link.Deliver(PipeKey::ScreenUnlock, "");
    EXPECT_FALSE(lock->isVisible());
    EXPECT_FALSE(Idle().IsActive());

    LockAndOpenPad();
    link.Deliver(PipeKey::UnlockPasswordUpdate, PasswordHelper::HashVelmoraPassword("000000"));
    link.Deliver(PipeKey::UnlockPasswordUpdate, "");
    EXPECT_EQ(log.Count("Unlock password update: "), 2);
    Type(QStringLiteral("123456"));
    EXPECT_TRUE(lock->isVisible());
    Type(QStringLiteral("000000"));
    EXPECT_FALSE(lock->isVisible());
}

// What another program does to the lock or to a cover is undone: at once where the system tells, or in the
// lock's own second.
TEST_F(ScreenLock, WhateverAnotherProgramChangesIsRestored) {
    windows.screens = {QRect(0, 0, 800, 600), QRect(800, 0, 640, 480)};
    Lock();
    ASSERT_EQ(windows.guarded.size(), 2u);
    const auto changed = [](const std::function<void(SystemWindows::Facts&)>& change) { return change; };
    const std::function<void(SystemWindows::Facts&)> changes[] = {
        changed([](auto& facts) { facts.shown = false; }),
        changed([](auto& facts) { facts.place.moveTo(4000, 3000); }),
        changed([](auto& facts) {
            facts.place.setSize({40, 30});
        }),
        changed([](auto& facts) { facts.topmost = false; }),
        changed([](auto& facts) { facts.enabled = false; }),
        changed([](auto& facts) { facts.whole = false; }),
        changed([](auto& facts) { facts.onTop = false; }),
    };
    const auto guarded = windows.guarded;
    for (const auto& [window, told] : guarded)
        for (const auto& change : changes)
            for (const bool tells : {true, false}) {
                const SystemWindows::Facts before = windows.facts[window].value();
                SystemWindows::Facts facts = before;
                change(facts);
                windows.Change(window, facts, tells);
                if (!tells)
                    Expire(*lock->findChild<QTimer*>(QStringLiteral("coverTimer")));
                EXPECT_EQ(windows.facts[window], before) << tells;
            }
    // One that cannot be restored does not keep the program from everything else.
    const int before = windows.restored;
    for (int i = 0; i < 10000; ++i)
        windows.Change(lock->winId(), SystemWindows::Facts{}, true);
    EXPECT_LT(windows.restored - before, 1000);

    QSignalSpy lost(lock.get(), &UDeviceScreenLock::Lost);
    windows.facts[lock->winId()] = std::nullopt;
    Expire(*lock->findChild<QTimer*>(QStringLiteral("coverTimer")));
    EXPECT_EQ(lost.count(), 1);
    lock->hide();
    EXPECT_TRUE(windows.guarded.empty()) << "an unlocked desktop is nobody's business";
}

TEST_F(ScreenLock, AChangeOfScreensTouchesOnlyTheDifference) {
    const QRect first(0, 0, 800, 600), second(800, 0, 640, 480), third(1440, 0, 640, 480);
    windows.screens = {first, second};
    Lock();
    const auto coverAt = [this](const QRect& place) {
        for (const auto& [window, facts] : windows.facts)
            if (facts && facts->place == place && windows.guarded.count(window) > 0)
                return window;
        return WId(0);
    };
    const WId kept = coverAt(second);
    ASSERT_NE(kept, 0u);
    for (const QVector<QRect>& screens :
         {QVector<QRect>{first, second, third}, {first, second}, {third, second}}) {
        windows.screens = screens;
        emit qApp->primaryScreenChanged(QGuiApplication::primaryScreen());
        EXPECT_EQ(coverAt(second), kept);
        EXPECT_EQ(coverAt(screens.first()), lock->winId());
        EXPECT_EQ(windows.guarded.size(), static_cast<size_t>(screens.size()));
    }
}

TEST_F(ScreenLock, ALockInForceIsThereAgainAfterTheProgramWasKilled) {
    const QString file = folder.filePath(QStringLiteral("lock.json"));
    const auto startAgain = [&] { // as after a kill: nothing of the old window says that it ends
        lock = std::make_unique<UDeviceScreenLock>(clock, windows, input);
        lock->Resume();
        return lock->isVisible();
    };
    Lock("18:00");
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_TRUE(startAgain());
    EXPECT_TRUE(Message().contains(QStringLiteral("18:00")));
    link.Deliver(PipeKey::ScreenUnlock, "");
    EXPECT_FALSE(startAgain());
    Lock();
    EXPECT_TRUE(startAgain());
    link.Deliver(PipeKey::ScreenLockReset, "");
    EXPECT_FALSE(startAgain());

    Lock("18:00");
    clock.time = QStringLiteral("18:00");
    EXPECT_FALSE(startAgain()) << "past its end";
    clock.time = QStringLiteral("10:00");
    for (const char* content :
         {"", "[]", "\0\0\0", R"({"endAt": "", "boot": "another"})",
          R"({"endAt": "18:00", "day": "2026-03-01"})", R"({"endAt": "25:00", "day": "2026-03-02"})",
          R"({"endAt": {}, "day": "2026-03-02"})"}) {
        QFile broken(file);
        ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
        broken.write(content);
        broken.close();
        EXPECT_FALSE(startAgain()) << content;
        EXPECT_FALSE(QFile::exists(file)) << content;
    }
    EXPECT_EQ(log.Count("LockMarker::Read ignores a lock that "), 8);
}
