// The screen lock's digits: typed, touched, shown and forgotten.
#include "ScreenLockFixture.h"

#include <QPropertyAnimation>

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

TEST_F(ScreenLock, WithoutThePasswordThePadSaysThatItWaitsForTheService) {
    AppContextData::Instance()->SetUnlockPassword({});
    LockAndOpenPad();
    auto* note = lock->findChild<QLabel*>(QStringLiteral("waitLabel"));
    EXPECT_TRUE(note->isVisible());
    link.Deliver(PipeKey::UnlockPasswordUpdate, PasswordHelper::HashVelmoraPassword("123456"));
    EXPECT_FALSE(note->isVisible());
}
