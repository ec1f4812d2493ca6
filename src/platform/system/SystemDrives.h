#pragma once

#include <QString>
#include <QVector>
#include <functional>
#include <memory>

/// A drive that a user can plug in and that is there now.
struct SystemDrive {
    QString root;    ///< absolute, such as "E:/" or "/media/user/STICK"
    quint64 arrival; ///< another number after the drive was away and came back

    bool operator==(const SystemDrive& other) const { return root == other.root && arrival == other.arrival; }
};

/// The drives that a user can plug in. A process has one watch at a time. GUI thread.
class SystemDrives {
public:
    /// Whoever holds it is told of changes.
    class Watch {
    public:
        virtual ~Watch() = default;
    };

    virtual ~SystemDrives() = default;

    /// In no particular order; none when they cannot be listed.
    virtual QVector<SystemDrive> Drives() const = 0;

    /// From the event loop, `changed` is called when Drives() may have another answer; what has changed, the
    /// caller finds by comparing. Null, and a line in the log, when the system does not tell.
    virtual std::unique_ptr<Watch> WatchDrives(std::function<void()> changed) const = 0;

    static const SystemDrives& Native();
};
