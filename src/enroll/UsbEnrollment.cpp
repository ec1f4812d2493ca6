#include "enroll/UsbEnrollment.h"

#include "platform/application/UsbDetector.h"

#include <QFutureWatcher>
#include <QtConcurrentRun>

void UsbEnrollment::FindEnrollJson(const QStringList& drives, bool mayEnroll) {
    auto* search = new QFutureWatcher<EnrollmentFile>(this);
    connect(search, &QFutureWatcherBase::finished, this, [this, search, mayEnroll] {
        search->deleteLater();
        const EnrollmentFile file = search->result();
        if (!file.IsFound())
            return;
        if (file.IsUsable())
            m_path = file.path;
        emit Found(file, mayEnroll);
    });
    search->setFuture(QtConcurrent::run([drives] {
        EnrollmentFile file;
        for (const QString& drive : drives)
            if (file = EnrollmentFile::FindOn(drive); file.IsFound())
                break;
        return file;
    }));
}

void UsbEnrollment::Forget(const QString& drive) {
    if (UsbDetector::IsOnDrive(m_path, drive))
        m_path.clear();
}
