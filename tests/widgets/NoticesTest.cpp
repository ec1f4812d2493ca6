#include "platform/context/Theme.h"
#include "widgets/Announcements.h"
#include "widgets/UAlert.h"
#include "widgets/UTextButton.h"
#include "widgets/UToast.h"

#include <QLineEdit>
#include <array>
#include <memory>

namespace {

class Notices : public testing::Test {
protected:
    void SetUp() override {
        Theme::Instance()->Apply(QStringLiteral("light"));
        window.resize(900, 600);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        field.setFocus();
    }
    std::unique_ptr<UAlert> MakeAlert(const char* title, bool cancellable = true) {
        auto alert = std::make_unique<UAlert>(&window);
        alert->SetTitle(QString::fromLatin1(title));
        alert->SetOkText(QStringLiteral("Do it"));
        if (cancellable)
            alert->SetCancelText(QStringLiteral("Leave it"));
        return alert;
    }
    static void Say(UToast& toast, const char* message, int duration = 60000) {
        toast.SetDuration(duration);
        toast.SetMessage(QString::fromLatin1(message));
        toast.show();
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }
    void ClickAt(const QPoint& place) { QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place); }

    QWidget window;
    QLineEdit field{&window};
};

TEST_F(Notices, AnAlertIsAnsweredFromTheKeyboardOrByTime) {
    const struct {
        const char* what;
        QVector<Qt::Key> keys;
        bool cancellable;
        bool accepted;
    } answers[] = {
        {"Return agrees", {Qt::Key_Return}, true, true},
        {"Space presses the button with the focus", {Qt::Key_Space}, true, true},
        {"Escape declines", {Qt::Key_Escape}, true, false},
        {"Tab leads to the declining button", {Qt::Key_Tab, Qt::Key_Return}, true, false},
        {"Tab twice leads back", {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Space}, true, true},
        {"Escape is the only button", {Qt::Key_Escape}, false, true},
        {"Tab stays on the only button", {Qt::Key_Tab, Qt::Key_Space}, false, true},
        {"the time declines", {}, true, false},
    };
    for (const auto& [what, keys, cancellable, accepts] : answers) {
        SCOPED_TRACE(what);
        const auto alert = MakeAlert("Question", cancellable);
        const QSignalSpy accepted(alert.get(), &UAlert::Accepted), rejected(alert.get(), &UAlert::Rejected);
        alert->SetTimeout(keys.empty() ? 1 : 0);
        alert->show();
        for (const Qt::Key key : keys)
            Press(key);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !alert->isVisible(); }));
        EXPECT_EQ(accepted.count(), accepts ? 1 : 0);
        EXPECT_EQ(rejected.count(), accepts ? 0 : 1);
        EXPECT_EQ(window.focusWidget(), &field) << "the focus does not return to where it was";
    }
}

TEST_F(Notices, AnAlertKeepsKeyboardAndMouseFromTheWindowBelow) {
    const auto alert = MakeAlert("Question");
    alert->show();
    for (int i = 0; i < 5; ++i) {
        Press(Qt::Key_Tab);
        EXPECT_NE(window.focusWidget(), &field);
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_NE(window.focusWidget(), &field);
    }
    ClickAt(field.geometry().center());
    EXPECT_NE(window.focusWidget(), &field);
    EXPECT_TRUE(alert->isVisible());
}

TEST_F(Notices, AlertsOfOneWindowComeOneAfterTheOther) {
    const Announcements announcements;
    const auto first = MakeAlert("First"), second = MakeAlert("Second"), third = MakeAlert("Third");
    for (UAlert* alert : {first.get(), second.get(), third.get(), second.get()}) // one twice, shown once
        alert->show();
    EXPECT_TRUE(first->isVisible() && !second->isVisible());
    third->hide(); // taken back before its turn
    Press(Qt::Key_Return);
    EXPECT_TRUE(second->isVisible());
    Press(Qt::Key_Return);
    EXPECT_FALSE(first->isVisible() || second->isVisible() || third->isVisible());
    EXPECT_EQ(announcements.Heard(), (QStringList{QStringLiteral("First"), QStringLiteral("Second")}));
}

TEST_F(Notices, ToastsOfOneWindowComeOneAfterTheOther) {
    const Announcements announcements;
    std::array<std::unique_ptr<UToast>, 3> toasts;
    for (std::size_t i = 0; i < toasts.size(); ++i)
        toasts[i] =
            std::make_unique<UToast>(&window, i == 2 ? UToast::WhenBusy::Replace : UToast::WhenBusy::Queue);
    const auto shown = [&] {
        std::string messages;
        for (const auto& toast : toasts)
            messages += toast && toast->isVisible() ? toast->ShownMessage().toStdString() : "";
        return messages;
    };
    // The toast, what it says (or - when it is taken away), what is on screen then. 2 replaces what it said
    // itself.
    for (const char* step : {"0aa", "1ba", "0ca", "0-b", "1-c", "0-", "2dd", "2ee", "2-", "1ff", "2xf", "2gf",
                             "1-g", "2-", "0hh", "1ih"}) {
        UToast& toast = *toasts[static_cast<std::size_t>(step[0] - '0')];
        if (step[1] == '-')
            toast.hide();
        else
            Say(toast, std::string(1, step[1]).c_str());
        EXPECT_EQ(shown(), step + 2) << step;
    }
    QWidget otherWindow;
    otherWindow.show();
    UToast there(&otherWindow);
    Say(there, "j");
    EXPECT_TRUE(there.isVisible()) << "another window has a queue of its own";
    toasts[0].reset();
    EXPECT_EQ(shown(), "i") << "one that is destroyed makes room";
    EXPECT_EQ(announcements.Heard().join(QString()), QStringLiteral("abcdefghji"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(toasts[1].get())->role(), QAccessible::AlertMessage);
}

TEST_F(Notices, AToastGoesByItselfAndLetsClicksThrough) {
    struct Counter : QWidget {
        using QWidget::QWidget;
        void mousePressEvent(QMouseEvent*) override { ++presses; }
        int presses = 0;
    } below(&window);
    below.resize(window.size());
    below.show();
    UToast toast(&window);
    Say(toast, "one", 1);
    for (int press = 0; press < 10; ++press)
        Say(toast, "two");
    EXPECT_EQ(toast.ShownMessage(), QStringLiteral("one"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return toast.ShownMessage() == QLatin1String("two"); }));
    EXPECT_TRUE(toast.isVisible());
    ClickAt(toast.geometry().center());
    EXPECT_EQ(below.presses, 1);
    toast.hide();
    EXPECT_EQ(toast.ShownMessage(), QString()) << "it is not told twice";
}

TEST_F(Notices, StayWithinTheWindowWhateverItsSize) {
    const auto alert = MakeAlert("Question");
    UToast toast(&window);
    alert->show();
    Say(toast,
        "A message of several words that needs more than one line. A message of several words that does.");
    for (const QSize& size : {QSize(900, 600), QSize(560, 340), QSize(1600, 900)}) {
        window.resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(alert->geometry(), window.rect());
        for (const UTextButton* button : alert->findChildren<UTextButton*>())
            EXPECT_TRUE(button->isHidden() ||
                        window.rect().contains({button->mapTo(&window, QPoint()), button->size()}));
        EXPECT_TRUE(window.rect().contains(toast.geometry())) << size.width();
        EXPECT_LE(qAbs(2 * toast.geometry().center().x() - size.width()), 4);
    }
}

} // namespace
