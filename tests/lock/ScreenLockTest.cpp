#include "lock/UDeviceScreenLock.h"
#include "platform/application/Watchdog.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/link/PipeClientService.h"
#include "platform/security/PasswordHelper.h"
#include "support/FakeDesktop.h"
#include "support/FakeService.h"
#include "support/LogCapture.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

struct ManualClock : Clock {
    QDateTime Now() const override {
        return {QDate(2026, 3, 2), QTime::fromString(time, QStringLiteral("HH:mm"))};
    }
    QString time = QStringLiteral("10:00");
};

class ScreenLock : public testing::Test {
protected:
    void SetUp() override {
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        AppContextData::Instance()->Reset();
        AppContextData::Instance()->SetUnlockPassword(PasswordHelper::HashVelmoraPassword("123456"));
        AppConfigData::Instance()->dataFolder = folder.path().toStdString();
        lock = std::make_unique<UDeviceScreenLock>(clock, windows, input);
        service = std::make_unique<FakeService>();
        link.SetServer(service->Address());
        link.Start();
        ASSERT_TRUE(service->WaitForClient());
        ASSERT_TRUE(QTest::qWaitFor([this] { return link.IsConnected(); }));
        for (auto* box : lock->findChildren<QLineEdit*>())
            boxes.push_back(box);
        std::sort(boxes.begin(), boxes.end(), [](const QLineEdit* a, const QLineEdit* b) {
            return a->property("PasswordIndex").toInt() < b->property("PasswordIndex").toInt();
        });
        ASSERT_EQ(boxes.size(), 6u);
    }
    void TearDown() override { link.Stop(); }

    void Lock(const std::string& endAt = {}) {
        link.Deliver(PipeKey::ScreenLock, "{\"endAt\": \"" + endAt + "\"}");
    }
    void LockAndOpenPad(const std::string& endAt = {}) {
        Lock(endAt);
        ASSERT_TRUE(QTest::qWaitForWindowActive(lock.get()));
        QTest::mouseClick(lock->findChild<QPushButton*>(QStringLiteral("enterPasswordButton")),
                          Qt::LeftButton);
    }
    /// Types where the focus is, as a user does.
    void Type(const QString& keys) {
        for (const QChar key : keys)
            QTest::keyClick(lock->focusWidget(), key.toLatin1());
    }
    void Press(Qt::Key key) { QTest::keyClick(lock->focusWidget(), key); }
    QString Typed() const {
        QString text;
        for (const QLineEdit* box : boxes)
            text += box->text().isEmpty() ? QStringLiteral("-") : box->text();
        return text;
    }
    int FocusedBox() const {
        return lock->focusWidget() ? lock->focusWidget()->property("PasswordIndex").toInt() : -1;
    }
    bool ShowsPad() const { return lock->findChild<QWidget*>(QStringLiteral("passwordPart"))->isVisible(); }
    bool ShowsMessage() const {
        return lock->findChild<QWidget*>(QStringLiteral("messagePart"))->isVisible();
    }
    QString Message() const { return lock->findChild<QLabel*>(QStringLiteral("messageLabel"))->text(); }
    QTimer& BackTimer() { return *lock->findChild<QTimer*>(QStringLiteral("backTimer")); }
    QTimer& UnlockTimer() { return *lock->findChild<QTimer*>(QStringLiteral("unlockTimer")); }
    IdleTimer& Idle() { return *lock->findChild<IdleTimer*>(); }
    static void Expire(QObject& timer) { QMetaObject::invokeMethod(&timer, "timeout"); }
    void ExpireIdle() { emit Idle().Timeout(); }

    LogCapture log;
    ManualClock clock;
    FakeWindows windows;
    FakeInput input;
    PipeClientService& link = *PipeClientService::Instance();
    std::unique_ptr<FakeService> service;
    const QTemporaryDir folder;
    std::unique_ptr<UDeviceScreenLock> lock;
    std::vector<QLineEdit*> boxes;
};

} // namespace

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

TEST_F(ScreenLock, SixRightDigitsUnlockAndTellTheService) {
    LockAndOpenPad();
    EXPECT_TRUE(ShowsPad());
    EXPECT_FALSE(ShowsMessage());
    EXPECT_EQ(BackTimer().interval(), 30000);
    Type(QStringLiteral("12345"));
    EXPECT_EQ(Typed(), QStringLiteral("12345-"));
    EXPECT_EQ(FocusedBox(), 5);
    Type(QStringLiteral("6"));
    EXPECT_FALSE(lock->isVisible());
    EXPECT_EQ(Typed(), QStringLiteral("------"));
    EXPECT_FALSE(BackTimer().isActive());
    EXPECT_FALSE(Idle().IsActive()) << "nothing to come back to without an end time";
    const FrameDecoder::Frame frame = service->Receive();
    EXPECT_EQ(frame.key, PipeKey::ScreenUnlock);
    EXPECT_EQ(frame.body, "");
}

TEST_F(ScreenLock, WrongDigitsShakeClearAndStayLocked) {
    LockAndOpenPad();
    for (int attempt = 0; attempt < 10; ++attempt) {
        Type(QStringLiteral("654321"));
        ASSERT_TRUE(lock->isVisible());
        EXPECT_EQ(Typed(), QStringLiteral("------"));
        EXPECT_EQ(FocusedBox(), 0);
        EXPECT_TRUE(BackTimer().isActive());
        auto* shake = lock->findChild<QPropertyAnimation*>();
        ASSERT_TRUE(shake);
        EXPECT_EQ(shake->propertyName(), QByteArray("pos"));
        EXPECT_EQ(shake->totalDuration(), 200);
    }
    AppContextData::Instance()->SetUnlockPassword({});
    Type(QStringLiteral("123456"));
    EXPECT_TRUE(lock->isVisible()) << "no stored password is not an open door";
    EXPECT_EQ(service->ReceivedBytes(), 0u);
}

TEST_F(ScreenLock, KeysThatAreNoDigitsDoNothingAndBackspaceGoesBack) {
    LockAndOpenPad();
    Type(QStringLiteral("1a!. 2"));
    EXPECT_EQ(Typed(), QStringLiteral("12----"));
    QKeyEvent arabicThree(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QStringLiteral("\u0663"));
    QCoreApplication::sendEvent(lock->focusWidget(), &arabicThree);
    EXPECT_EQ(Typed(), QStringLiteral("123---"));
    Press(Qt::Key_Backspace); // box 3 is empty: back to box 2
    Press(Qt::Key_Escape);
    EXPECT_TRUE(ShowsPad());
    Press(Qt::Key_Backspace);
    EXPECT_EQ(FocusedBox(), 1);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Typed(), QStringLiteral("------"));
    EXPECT_EQ(FocusedBox(), 0);
}

TEST_F(ScreenLock, DigitKeysOnScreenWorkLikeTheKeyboard) {
    LockAndOpenPad();
    const auto touch = [this](const QString& text) {
        for (auto* key : lock->findChildren<QPushButton*>())
            if (key->text() == text)
                return QTest::mouseClick(key, Qt::LeftButton);
        FAIL() << "no key " << text.toStdString();
    };
    for (const char* digit : {"1", "2", "9", "\u232b", "\u232b"})
        touch(QString::fromUtf8(digit));
    EXPECT_EQ(Typed(), QStringLiteral("12----"));
    EXPECT_EQ(FocusedBox(), 1); // typing goes on over the second digit
    for (const char* digit : {"2", "3", "4", "5", "6"})
        touch(QString::fromLatin1(digit));
    EXPECT_FALSE(lock->isVisible());
}

TEST_F(ScreenLock, ThePadGoesBackToTheMessageWhenNothingIsTyped) {
    LockAndOpenPad();
    Type(QStringLiteral("12"));
    Expire(BackTimer());
    EXPECT_TRUE(ShowsMessage());
    EXPECT_FALSE(ShowsPad());
    EXPECT_EQ(Typed(), QStringLiteral("------"));
    EXPECT_FALSE(BackTimer().isActive());
    EXPECT_TRUE(lock->isVisible());
}

TEST_F(ScreenLock, EverythingDoneOnThePadPutsTheReturnOff) {
    LockAndOpenPad();
    auto* view = lock->findChild<QCheckBox*>();
    auto* area = lock->findChild<QWidget*>(QStringLiteral("passwordArea"));
    const std::vector<std::function<void()>> deeds{
        [this] { Type(QStringLiteral("7")); }, [this] { Press(Qt::Key_Backspace); },
        [view] { QTest::keyClick(view, Qt::Key_Space); },
        [area] { QTest::mouseClick(area, Qt::LeftButton, {}, QPoint(2, 2)); }};
    for (const auto& deed : deeds) {
        BackTimer().stop();
        boxes.front()->setFocus();
        deed();
        EXPECT_TRUE(BackTimer().isActive());
    }
}

TEST_F(ScreenLock, APressAnywhereInTheAreaFindsTheFirstEmptyBox) {
    LockAndOpenPad();
    Type(QStringLiteral("12"));
    auto* view = lock->findChild<QCheckBox*>();
    auto* area = lock->findChild<QWidget*>(QStringLiteral("passwordArea"));
    const std::vector<std::function<void()>> presses{
        [area] { QTest::mouseClick(area, Qt::LeftButton, {}, QPoint(2, 2)); },
        [this] { QTest::mouseClick(boxes[0], Qt::LeftButton); },
        [this] { QTest::mouseDClick(boxes[5], Qt::LeftButton); },
        [view] { QTest::keyClick(view, Qt::Key_Space); },
    };
    for (const auto& press : presses) {
        view->setFocus();
        press();
        EXPECT_EQ(FocusedBox(), 2);
    }
}

TEST_F(ScreenLock, TheCheckBoxShowsTheDigitsUntilTheMessageIsBack) {
    LockAndOpenPad();
    auto* view = lock->findChild<QCheckBox*>();
    const auto echo = [this] { return boxes[3]->echoMode(); };
    EXPECT_EQ(echo(), QLineEdit::Password);
    view->click();
    EXPECT_EQ(echo(), QLineEdit::Normal);
    view->click();
    EXPECT_EQ(echo(), QLineEdit::Password);
    view->click();
    Expire(BackTimer());
    EXPECT_FALSE(view->isChecked());
    EXPECT_EQ(echo(), QLineEdit::Password);
    EXPECT_FALSE(BackTimer().isActive());
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

TEST_F(ScreenLock, WithoutThePasswordThePadSaysThatItWaitsForTheService) {
    AppContextData::Instance()->SetUnlockPassword({});
    LockAndOpenPad();
    auto* note = lock->findChild<QLabel*>(QStringLiteral("waitLabel"));
    EXPECT_TRUE(note->isVisible());
    link.Deliver(PipeKey::UnlockPasswordUpdate, PasswordHelper::HashVelmoraPassword("123456"));
    EXPECT_FALSE(note->isVisible());
}

TEST(StallMeter, TellsAStallOnceAndGivesUpOnlyWhileLocked) {
    using Verdict = StallMeter::Verdict;
    struct Look {
        int elapsedMs;
        bool answered;
        bool locked;
        Verdict verdict;
    };
    const std::vector<std::vector<Look>> stories{
        {{1000, true, false, Verdict::Well},
         {1000, false, false, Verdict::Well},
         {1000, true, false, Verdict::Well}},
        {{1000, false, false, Verdict::Well},
         {1000, false, false, Verdict::Stalled},
         {1000, false, false, Verdict::Well},
         {1000, true, false, Verdict::Recovered},
         {1000, true, false, Verdict::Well}},
        // A machine that slept for a day has not stalled.
        {{86400000, false, true, Verdict::Well}, {1000, true, true, Verdict::Well}},
    };
    for (const auto& story : stories) {
        StallMeter meter;
        for (const Look& look : story)
            EXPECT_EQ(meter.Look(look.elapsedMs, look.answered, look.locked), look.verdict);
    }
    for (const bool locked : {true, false}) {
        StallMeter meter;
        Verdict last = Verdict::Well;
        for (int second = 1; second <= 20; ++second)
            last = meter.Look(1000, false, locked);
        EXPECT_EQ(last == Verdict::Hopeless, locked);
        EXPECT_EQ(meter.SilentMs(), 20000);
    }
}
