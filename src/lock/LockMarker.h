#pragma once

#include "platform/application/Clock.h"
#include "platform/application/EndTime.h"

#include <QString>
#include <optional>

/// A file in the user's data folder that says that a lock is in force, for a start after the program was
/// killed. It holds nothing secret: when the lock ends, and to which day and which boot of the system it
/// belongs.
class LockMarker {
public:
    /// `bootId` names the system's current boot.
    LockMarker(const QString& file, const std::string& bootId, const Clock& clock);

    /// Before the lock shows. Whole or not at all; a failure is logged.
    void Write(const EndTime& end) const;
    void Remove() const;

    /// The end of the lock that is in force; nothing when none is. A marker that is broken or out of date is
    /// logged and removed.
    std::optional<EndTime> Read() const;

private:
    const QString m_file;
    const QString m_bootId;
    const Clock& m_clock;
};
