#include "platform/context/Theme.h"
#include "widgets/Announcements.h"
#include "widgets/UAlert.h"
#include "widgets/UTextButton.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>
#include <gtest/gtest.h>
#include <memory>

namespace {

class Alert : public testing::Test {
protected:
    void SetUp() override {
        Theme::Instance()->Apply(QStringLiteral("light"));
        window.resize(900, 600);
        field = new QLineEdit(&window);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        field->setFocus();
    }

    std::unique_ptr<UAlert> Make(const char* title, bool cancellable = true) {
        auto alert = std::make_unique<UAlert>(&window);
        alert->SetTitle(QString::fromLatin1(title));
        alert->SetContent(QStringLiteral("Some words about it."));
        alert->SetOkText(QStringLiteral("Do it"));
        if (cancellable)
            alert->SetCancelText(QStringLiteral("Leave it"));
        return alert;
    }
    static void Press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }
    QString FocusText() const {
        const auto* button = qobject_cast<QPushButton*>(window.focusWidget());
        return button ? button->text() : QString();
    }

    QWidget window;
    QLineEdit* field = nullptr;
};

struct Answer {
    const char* what;
    QVector<Qt::Key> keys;
    bool cancellable;
    bool accepted;
};

TEST_F(Alert, IsAnsweredFromTheKeyboard) {
    const Answer answers[] = {
        {"Return agrees", {Qt::Key_Return}, true, true},
        {"Space presses the button with the focus", {Qt::Key_Space}, true, true},
        {"Escape declines", {Qt::Key_Escape}, true, false},
        {"Tab leads to the declining button", {Qt::Key_Tab, Qt::Key_Return}, true, false},
        {"Tab twice leads back", {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space}, true, true},
        {"Escape is the only button", {Qt::Key_Escape}, false, true},
        {"Tab stays on the only button", {Qt::Key_Tab, Qt::Key_Space}, false, true},
    };
    for (const Answer& answer : answers) {
        SCOPED_TRACE(answer.what);
        const auto alert = Make("Question", answer.cancellable);
        const QSignalSpy accepted(alert.get(), &UAlert::Accepted);
        const QSignalSpy rejected(alert.get(), &UAlert::Rejected);
        alert->show();
        EXPECT_EQ(FocusText(), QStringLiteral("Do it"));
        for (const Qt::Key key : answer.keys)
            Press(window, key);
        EXPECT_EQ(accepted.count(), answer.accepted ? 1 : 0);
        EXPECT_EQ(rejected.count(), answer.accepted ? 0 : 1);
        EXPECT_FALSE(alert->isVisible());
        EXPECT_EQ(window.focusWidget(), field) << "the focus does not return to where it was";
    }
}

TEST_F(Alert, KeepsKeyboardAndMouseFromTheWindowBelow) {
    const auto alert = Make("Question");
    alert->show();
    for (int i = 0; i < 5; ++i) {
        Press(window, Qt::Key_Tab);
        EXPECT_NE(window.focusWidget(), field);
        Press(window, Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_NE(window.focusWidget(), field);
    }
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, field->geometry().center());
    EXPECT_NE(window.focusWidget(), field);
    EXPECT_TRUE(alert->isVisible());
    alert->hide();
}

TEST_F(Alert, OnesOfOneWindowComeOneAfterTheOther) {
    const Announcements announcements;
    const auto first = Make("First");
    const auto second = Make("Second");
    const auto third = Make("Third");
    first->show();
    second->show();
    third->show();
    second->show(); // asked for twice, shown once
    EXPECT_TRUE(first->isVisible());
    EXPECT_FALSE(second->isVisible());

    third->hide(); // taken back before its turn
    Press(window, Qt::Key_Return);
    EXPECT_TRUE(second->isVisible());
    Press(window, Qt::Key_Return);
    EXPECT_FALSE(first->isVisible() || second->isVisible() || third->isVisible());
    EXPECT_EQ(announcements.Heard(), (QStringList{QStringLiteral("First"), QStringLiteral("Second")}));
}

TEST_F(Alert, MayGoByItselfAsIfDeclined) {
    const auto alert = Make("Question");
    QSignalSpy rejected(alert.get(), &UAlert::Rejected);
    alert->SetTimeout(1);
    alert->show();
    EXPECT_TRUE(rejected.count() == 1 || rejected.wait());
    EXPECT_FALSE(alert->isVisible());
}

TEST_F(Alert, CoversTheWindowAndFollowsItsSize) {
    const auto alert = Make("Question");
    alert->show();
    for (const QSize& size : {QSize(900, 600), QSize(560, 340)}) {
        window.resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(alert->geometry(), window.rect());
        for (const UTextButton* button : alert->findChildren<UTextButton*>()) {
            const QRect place(button->mapTo(&window, QPoint()), button->size());
            EXPECT_TRUE(window.rect().contains(place));
        }
    }
    alert->hide();
}

} // namespace
