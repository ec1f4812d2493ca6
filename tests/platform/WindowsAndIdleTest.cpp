#include "platform/application/IdleTimer.h"
#include "platform/application/WindowStack.h"
#include "support/FakeDesktop.h"

#include <QSignalSpy>
#include <QWidget>
#include <QtTest>
#include <gtest/gtest.h>

TEST(WindowStack, EachWindowIsPlacedBelowTheNextHigherOneAndTheGoneAreForgotten) {
    FakeWindows system;
    WindowStack stack(system);
    QWidget lock, cover, mask, hidden;
    const std::pair<QWidget*, int> levels[] = {{&lock, 6}, {&hidden, 9}, {&mask, 4}, {&cover, 5}};
    for (const auto& [window, level] : levels) {
        window->setProperty("TopLevel", level);
        stack.PushWindow(window);
    }
    for (QWidget* window : {&lock, &cover})
        window->show();
    QCoreApplication::processEvents();
    system.order.clear();
    mask.show(); // the last one shown is not the highest
    ASSERT_TRUE(QTest::qWaitFor([&] { return !system.order.empty(); }));
    EXPECT_EQ(system.order, (std::vector<WId>{lock.winId(), cover.winId(), mask.winId()}));
    {
        QWidget goes;
        goes.setProperty("TopLevel", 7);
        stack.PushWindow(&goes);
        goes.show();
        EXPECT_EQ(stack.Highest(), &goes);
    }
    EXPECT_EQ(stack.Highest(), &lock);
    stack.Restack();
    EXPECT_EQ(system.order, (std::vector<WId>{lock.winId(), cover.winId(), mask.winId()}));
}

TEST(SystemInput, TheKeyboardIsFreeWhenItsLastHolderLetsGo) {
    FakeInput input;
    QWindow lock, mask;
    const struct {
        QWindow& window;
        bool hold;
        QWindow* has;
    } steps[] = {{lock, true, &lock},  {mask, true, &mask},  {lock, true, &mask},
                 {mask, false, &lock}, {mask, false, &lock}, {lock, false, nullptr}};
    for (const auto& step : steps) {
        if (step.hold)
            input.HoldKeyboard(step.window);
        else
            input.ReleaseKeyboard(step.window);
        EXPECT_EQ(input.keyboard, step.has) << &step - steps;
    }
}

TEST(IdleTimer, InputPutsTheTimeoutOff) {
    FakeInput input;
    IdleTimer idle(input, nullptr);
    QSignalSpy timeout(&idle, &IdleTimer::Timeout);
    auto* check = idle.findChild<QTimer*>();
    const auto pass = [check] { QMetaObject::invokeMethod(check, "timeout"); };

    idle.Start(1200);
    EXPECT_EQ(check->interval(), 1200 * 1000);
    input.idleMs = 200 * 1000; // the user was active 200 s ago
    pass();
    EXPECT_EQ(timeout.count(), 0);
    EXPECT_EQ(check->interval(), 1000 * 1000);
    input.idleMs = 1200 * 1000;
    pass();
    EXPECT_EQ(timeout.count(), 1);

    idle.Start(1200);
    idle.Stop();
    EXPECT_FALSE(idle.IsActive());
    idle.Start(1200);
    input.idleMs = -1; // a system that cannot tell: the time since the start counts
    pass();
    EXPECT_EQ(timeout.count(), 2);
}
