#pragma once

#include "enroll/EnrollmentFile.h"

#include <QObject>
#include <QStringList>

/// Looks for enrolment files on USB drives. A drive may take its time, so it does that on a thread of Qt's
/// pool. GUI thread.
class UsbEnrollment : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Looks on the drives, one after the other, until one has a file; then Found comes.
    void FindEnrollJson(const QStringList& drives, bool mayEnroll);
    /// A drive has gone, and what was found there with it.
    void Forget(const QString& drive);
    /// The usable file that was found last, as long as its drive is there; else empty.
    const QString& Path() const { return m_path; }

signals:
    /// `mayEnroll` is what the search was given.
    void Found(const EnrollmentFile& file, bool mayEnroll);

private:
    QString m_path;
};
