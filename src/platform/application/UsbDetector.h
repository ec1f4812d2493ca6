#pragma once

#include "platform/system/SystemDrives.h"

#include <QObject>
#include <QStringList>

/// Tells when a USB drive comes and goes. A drive is named by its root folder. GUI thread.
class UsbDetector : public QObject {
    Q_OBJECT

public:
    explicit UsbDetector(QObject* parent = nullptr);
    UsbDetector(const SystemDrives& system, QObject* parent);

    /// The drives that are there now.
    QStringList Drives() const;

    /// Whether the file `path` lies on `drive`.
    static bool IsOnDrive(const QString& path, const QString& drive);

signals:
    void UsbArrived(const QString& drive);
    void UsbRemoved(const QString& drive);

private:
    void Compare();

    const SystemDrives& m_system;
    QVector<SystemDrive> m_known;
    std::unique_ptr<SystemDrives::Watch> m_watch;
};
