#pragma once

#include "platform/files/TaskControl.h"

#include <atomic>
#include <memory>

/// How far a piece of work has come: written on its thread, looked at from the GUI's. Copies are the same
/// meter.
class ProgressMeter {
public:
    void Set(int percent) const { *m_percent = percent; }
    /// 0 to 100; -1 while the work has not begun.
    int Percent() const { return *m_percent; }

    /// Lets a task move the meter from `from` to `to` percent.
    TaskControl Watch(const Cancellation& cancellation, int from = 0, int to = 100) const {
        Set(from);
        return {cancellation, [meter = *this, from, to](std::int64_t done, std::int64_t total) {
                    if (total > 0)
                        meter.Set(from + static_cast<int>(done * (to - from) / total));
                }};
    }

private:
    std::shared_ptr<std::atomic_int> m_percent = std::make_shared<std::atomic_int>(-1);
};
