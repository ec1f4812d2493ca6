#pragma once

#include "platform/system/SystemDrives.h"

/// What is mounted where desktops and people mount what is plugged in, out of the kernel's table of mounts.
class UnixDrives final : public SystemDrives {
public:
    explicit UnixDrives(const QString& mountTable = QStringLiteral("/proc/self/mountinfo"))
        : m_mountTable(mountTable) {}

    QVector<SystemDrive> Drives() const override;
    std::unique_ptr<Watch> WatchDrives(std::function<void()> changed) const override;

private:
    QString m_mountTable;
};
