#pragma once

#include "platform/system/SystemInput.h"
#include "platform/system/SystemWindows.h"

#include <gtest/gtest.h>
#include <vector>

/// Windows that do nothing but remember what was asked of them.
class FakeWindows : public SystemWindows {
public:
    void AllowTakingForeground() const override {}
    void CreateHidden(QWidget&) const override {}
    void RaiseTopmost(WId window) const override { order = {window}; }
    void PlaceBelow(WId window, WId above) const override {
        EXPECT_EQ(order.empty() ? 0 : order.back(), above);
        order.push_back(window);
    }

    mutable std::vector<WId> order; // the highest first
};

/// An input that remembers who has the keyboard, with a scripted idle time.
class FakeInput : public SystemInput {
public:
    qint64 MillisecondsSinceInput() const override { return idleMs; }

    mutable QWindow* keyboard = nullptr; // who has it
    qint64 idleMs = 0;

protected:
    void TakeKeyboard(QWindow& window) const override { keyboard = &window; }
    void FreeKeyboard(QWindow&) const override { keyboard = nullptr; }
};
