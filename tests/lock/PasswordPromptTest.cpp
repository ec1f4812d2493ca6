#include "lock/PasswordPrompt.h"
#include "lock/PasswordPad.h"
#include "lock/UBodySettingLockModal.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/security/PasswordHelper.h"
#include "support/LogCapture.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

struct SecondsClock : Clock {
    QDateTime Now() const override { return QDateTime::fromSecsSinceEpoch(1'000'000 + seconds); }
    qint64 seconds = 0;
};

/// The prompt in the dialog of the settings page.
class Prompt : public testing::Test {
protected:
    void SetUp() override {
        LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
        AppContextData::Instance()->Reset();
        AppContextData::Instance()->SetEnrolled(true);
        AppContextData::Instance()->SetUnlockPassword(PasswordHelper::HashVelmoraPassword("123456"));
        window.resize(900, 700);
        field = new QLineEdit(&window);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        MakeDialog();
    }
    void TearDown() override { LanguageHelper::Instance()->SetLanguage(QStringLiteral("en")); }

    void MakeDialog() {
        dialog = std::make_unique<UBodySettingLockModal>(&window, clock);
        dialog->show();
    }
    template <class Kind>
    Kind* Part(const char* name) {
        return dialog->findChild<Kind*>(QLatin1String(name));
    }
    /// As a user does, where the focus is.
    void Press(Qt::Key key) { QTest::keyClick(window.windowHandle(), key); }
    void Type(const QByteArray& digits) {
        for (const char digit : digits)
            QTest::keyClick(window.windowHandle(), digit);
    }
    void Try(const QByteArray& digits) {
        Type(digits);
        Part<QPushButton>("okButton")->click();
    }
    QString Typed() { return dialog->findChild<PasswordPad*>()->GetPassword(); }
    QString Status() { return Part<QLabel>("promptStatus")->text(); }
    QTimer& Timer() { return *Part<QTimer>("lockOutTimer"); }

    LogCapture log;
    SecondsClock clock;
    QWidget window;
    QLineEdit* field = nullptr;
    std::unique_ptr<UBodySettingLockModal> dialog;
};

enum Event { Wrong, Right, Short, Anew, Tick };
enum Boxes { Usable, OutOfUse };

struct Step {
    qint64 second;
    Event event;
    Boxes boxes;
    const char* status;
    bool timer;
    const char* log; ///< what follows "input password eorr cout is :", if such a line comes
};

constexpr char WrongText[] = "This password is wrong.";
constexpr char LockedText[] = "Too many wrong passwords. Cancel, and come back in a minute.";

TEST_F(Prompt, GuessingIsSlowedFromTheFifthWrongPasswordOn) {
    const std::vector<Step> five{{0, Wrong, Usable, WrongText, false, "1,time is 0"},
                                 {1, Short, Usable, WrongText, false, "2,time is 0"},
                                 {2, Anew, Usable, "", false, nullptr},
                                 {2, Wrong, Usable, WrongText, false, "3,time is 0"},
                                 {3, Right, Usable, "", false, nullptr},
                                 {4, Wrong, Usable, WrongText, false, "4,time is 0"},
                                 {10, Wrong, Usable, WrongText, false, "5,time is 0"}};
    const std::vector<std::vector<Step>> endings{
        // Only the clock runs; what is shown anew within the minute is locked, and released in time.
        {{11, Right, OutOfUse, LockedText, true, nullptr},
         {12, Short, OutOfUse, LockedText, true, nullptr},
         {69, Tick, OutOfUse, LockedText, true, nullptr},
         {70, Tick, Usable, "", false, nullptr},
         {71, Wrong, Usable, WrongText, false, "1,time is 0"}},
        // The sixth locks, in the same second too, and time alone does not release.
        {{10, Wrong, OutOfUse, LockedText, false, "6,time is 1000010"},
         {80, Wrong, OutOfUse, LockedText, false, nullptr},
         {80, Anew, Usable, "", false, nullptr},
         {81, Right, Usable, "", false, nullptr},
         {82, Wrong, Usable, WrongText, false, "1,time is 0"}},
        {{10, Wrong, OutOfUse, LockedText, false, "6,time is 1000010"},
         {20, Anew, OutOfUse, LockedText, true, nullptr},
         {69, Anew, OutOfUse, LockedText, true, nullptr},
         {75, Tick, Usable, "", false, nullptr}},
        // A wrong one after the minute ends the matter.
        {{70, Wrong, Usable, "", false, "6,time is 1000010"},
         {70, Wrong, Usable, WrongText, false, "1,time is 0"}},
        {{9999, Anew, Usable, "", false, nullptr}, {9999, Wrong, Usable, WrongText, false, "1,time is 0"}},
    };
    for (const std::vector<Step>& ending : endings) {
        MakeDialog();
        std::vector<Step> steps = five;
        steps.insert(steps.end(), ending.begin(), ending.end());
        QSignalSpy opened(dialog.get(), &UBodySettingLockModal::PermissionsLock);
        for (const Step& step : steps) {
            SCOPED_TRACE(testing::Message() << &ending - endings.data() << " at " << step.second);
            clock.seconds = step.second;
            const int lines = log.Count("eorr cout");
            opened.clear();
            if (step.event == Tick)
                QMetaObject::invokeMethod(&Timer(), "timeout");
            else if (step.event == Anew)
                dialog->hide();
            else
                Try(step.event == Right ? "123456" : step.event == Short ? "123" : "654321");
            EXPECT_EQ(opened.count(), step.event == Right);
            dialog->show();
            EXPECT_EQ(Part<QWidget>("passwordArea")->isEnabled(), step.boxes == Usable);
            EXPECT_EQ(Part<QWidget>("keypad")->isEnabled(), step.boxes == Usable);
            EXPECT_EQ(Status(), QLatin1String(step.status));
            EXPECT_EQ(Timer().isActive(), step.timer);
            EXPECT_EQ(Typed(), QString());
            EXPECT_EQ(log.Count("eorr cout"), lines + (step.log != nullptr));
            const std::string line = std::string("eorr cout is :") + (step.log ? step.log : "") + '\n';
            EXPECT_TRUE(!step.log || log.Text().rfind(line) == log.Text().rfind("eorr cout")) << log.Text();
        }
        dialog->hide();
        EXPECT_FALSE(Timer().isActive());
    }
}

TEST_F(Prompt, TheSixthDigitLeadsToOkAndKeysDoWhatButtonsDo) {
    const QSignalSpy opened(dialog.get(), &UBodySettingLockModal::PermissionsLock);
    Type("123456");
    EXPECT_EQ(window.focusWidget(), Part<QWidget>("okButton"));
    EXPECT_EQ(opened.count(), 0);
    Press(Qt::Key_Backspace); // a slip is taken back where it is noticed
    EXPECT_EQ(Typed(), QStringLiteral("12345"));
    Type("7");
    EXPECT_EQ(Typed(), QStringLiteral("123457"));
    auto* view = dialog->findChild<QCheckBox*>();
    view->click();
    EXPECT_EQ(dialog->findChild<PasswordPad*>()->findChild<QLineEdit*>()->echoMode(), QLineEdit::Normal);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(view->isChecked());
    dialog->show();
    EXPECT_EQ(Typed(), QString());
    Type("12");
    Press(Qt::Key_Return);
    Press(Qt::Key_Return); // as a key that is held
    EXPECT_EQ(Status(), QLatin1String(WrongText));
    EXPECT_EQ(log.Count("eorr cout"), 1);
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("de"));
    QCoreApplication::processEvents();
    EXPECT_EQ(Status(), QStringLiteral("Dieses Passwort ist falsch."));
    Type("123456");
    Press(Qt::Key_Enter);
    EXPECT_EQ(opened.count(), 1);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(Prompt, TheDialogGoesWithItsPageAndWhenNothingIsLockedAnyMore) {
    auto* page = new QWidget(&window);
    page->show();
    const QPointer<UBodySettingLockModal> ofPage = new UBodySettingLockModal(page, clock);
    const QSignalSpy opened(ofPage, &UBodySettingLockModal::PermissionsLock);
    dialog->hide();
    ofPage->show();
    EXPECT_EQ(ofPage->geometry(), window.rect());
    page->hide();
    EXPECT_FALSE(ofPage->isVisible());
    page->show();
    ofPage->show();
    ASSERT_TRUE(ofPage->isVisible());
    AppContextData::Instance()->SetEnrolled(false);
    EXPECT_FALSE(ofPage->isVisible());
    delete page;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(ofPage);
    EXPECT_EQ(opened.count(), 0);
}

} // namespace
