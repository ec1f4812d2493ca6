#include "platform/application/IdleTimer.h"
#include "platform/application/WindowStack.h"
#include "support/FakeDesktop.h"

#include <QSignalSpy>
#include <QWidget>
#include <QtTest>
#include <gtest/gtest.h>

TEST(WindowStack, HigherLevelsAreLiftedLastWhateverIsShownLast) {
    FakeDesktop desktop;
    WindowStack stack(desktop);
    QWidget lock;
    QWidget mask;
    QWidget hidden;
    lock.setProperty("TopLevel", 6);
    mask.setProperty("TopLevel", 3);
    hidden.setProperty("TopLevel", 9);
    for (QWidget* window : {&lock, &hidden, &mask})
        stack.PushWindow(window);

    lock.show();
    QCoreApplication::processEvents();
    desktop.raised.clear();
    mask.show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !desktop.raised.empty(); }));
    EXPECT_EQ(desktop.raised, (std::vector<WId>{mask.winId(), lock.winId()}));
}

TEST(WindowStack, ForgetsWindowsThatAreGone) {
    FakeDesktop desktop;
    WindowStack stack(desktop);
    QWidget stays;
    stack.PushWindow(&stays);
    stays.show();
    {
        QWidget goes;
        stack.PushWindow(&goes);
        goes.show();
    }
    desktop.raised.clear();
    stack.Restack();
    EXPECT_EQ(desktop.raised, std::vector<WId>{stays.winId()});
}

TEST(IdleTimer, InputPutsTheTimeoutOff) {
    FakeDesktop desktop;
    IdleTimer idle(desktop, nullptr);
    QSignalSpy timeout(&idle, &IdleTimer::Timeout);
    auto* check = idle.findChild<QTimer*>();
    const auto pass = [check] { QMetaObject::invokeMethod(check, "timeout"); };

    idle.Start(1200);
    EXPECT_EQ(check->interval(), 1200 * 1000);
    desktop.idleMs = 200 * 1000; // the user was active 200 s ago
    pass();
    EXPECT_EQ(timeout.count(), 0);
    EXPECT_EQ(check->interval(), 1000 * 1000);
    desktop.idleMs = 1200 * 1000;
    pass();
    EXPECT_EQ(timeout.count(), 1);

    idle.Start(1200);
    idle.Stop();
    EXPECT_FALSE(idle.IsActive());
    idle.Start(1200);
    desktop.idleMs = -1; // a system that cannot tell: the time since the start counts
    pass();
    EXPECT_EQ(timeout.count(), 2);
}
