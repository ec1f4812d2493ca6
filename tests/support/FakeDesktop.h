#pragma once

#include "platform/system/SystemDesktop.h"

#include <vector>

/// A desktop that does nothing but remember, with a scripted idle time.
class FakeDesktop : public SystemDesktop {
public:
    void PrepareApplication() const override {}
    void AllowTakingForeground() const override {}
    void RaiseTopmost(WId window) const override { raised.push_back(window); }
    void HoldKeyboard(QWindow&, bool hold) const override { holdsKeyboard = hold; }
    void CreateHidden(QWidget&) const override {}
    qint64 MillisecondsSinceInput() const override { return idleMs; }
    std::optional<bool> IsTaskbarDark() const override { return std::nullopt; }

    mutable std::vector<WId> raised;
    mutable bool holdsKeyboard = false;
    qint64 idleMs = 0;
};
