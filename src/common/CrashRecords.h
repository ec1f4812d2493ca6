#pragma once

#include <QDateTime>
#include <QString>

/// The records that crashes leave in the log folder, named "SESSION-Crash.START.PROCESS" after the run that
/// has crashed, as its log is. GUI thread.
class CrashRecords {
public:
    /// Tells the log of the records that are new, keeps the newest five, and has a crash of this run leave
    /// one. After the log and every other crash reporter were started.
    static void Start(const QString& folder);

    /// When the newest of them was written; invalid when there is none.
    static QDateTime Newest(const QString& folder);
};
