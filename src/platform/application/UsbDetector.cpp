#include "platform/application/UsbDetector.h"

#include <utility>

UsbDetector::UsbDetector(QObject* parent) : UsbDetector(SystemDrives::Native(), parent) {}

// The watch comes first, so that nothing is missed between it and the first look.
UsbDetector::UsbDetector(const SystemDrives& system, QObject* parent)
    : QObject(parent), m_system(system), m_watch(system.WatchDrives([this] { Compare(); })) {
    m_known = m_system.Drives();
}

QStringList UsbDetector::Drives() const {
    QStringList roots;
    for (const SystemDrive& drive : m_system.Drives())
        roots.append(drive.root);
    return roots;
}

bool UsbDetector::IsOnDrive(const QString& path, const QString& drive) {
    return !drive.isEmpty() && path.startsWith(drive) &&
           (drive.endsWith(QLatin1Char('/')) || path.size() == drive.size() ||
            path.at(drive.size()) == QLatin1Char('/'));
}

void UsbDetector::Compare() {
    const QVector<SystemDrive> now = m_system.Drives();
    const QVector<SystemDrive> before = std::exchange(m_known, now);
    for (const SystemDrive& drive : before)
        if (!now.contains(drive))
            emit UsbRemoved(drive.root);
    for (const SystemDrive& drive : now)
        if (!before.contains(drive))
            emit UsbArrived(drive.root);
}
