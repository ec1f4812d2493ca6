#pragma once

#include <QDateTime>

/// The time of day as the product sees it; tests put their own in its place.
class Clock {
public:
    virtual ~Clock() = default;

    /// Local date and time.
    virtual QDateTime Now() const { return QDateTime::currentDateTime(); }

    /// The machine's clock.
    static const Clock& System() {
        static const Clock clock;
        return clock;
    }
};
