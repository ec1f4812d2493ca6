#include "common/CrashRecords.h"

#include "platform/security/LogText.h"
#include "platform/system/FileRights.h"
#include "platform/system/SystemCrash.h"
#include "platform/system/SystemSession.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <algorithm>
#include <glog/logging.h>

namespace {

constexpr int Kept = 5;
constexpr char New[] = ".new"; // behind the name until a start has told of it

/// Of this user, also in a folder that all users share.
QFileInfoList NewestFirst(const QDir& folder) {
    QFileInfoList records =
        folder.entryInfoList({QStringLiteral("*-Crash.*")}, QDir::Files | QDir::NoSymLinks, QDir::Time);
    const auto isOthers = [](const QFileInfo& record) {
        return !FileRights::Of(std::filesystem::u8path(record.filePath().toStdString())).isOwn;
    };
    records.erase(std::remove_if(records.begin(), records.end(), isOthers), records.end());
    return records;
}

} // namespace

void CrashRecords::Start(const QString& folder) {
    QDir dir(folder);
    for (const QString& name :
         dir.entryList({QStringLiteral("*-Crash.*") + QLatin1String(New)}, QDir::Files)) {
        const QString known = name.chopped(static_cast<int>(sizeof New) - 1);
        if (dir.rename(name, known)) // another user's stays as it is
            LOG(ERROR) << "CrashRecords::Start an earlier run has crashed: " << LogText(known);
    }
    const QFileInfoList records = NewestFirst(dir);
    for (int i = Kept; i < records.size(); ++i)
        QFile::remove(records[i].filePath());

    const SystemCrash& system = SystemCrash::Native();
    const QString start =
        QLocale::c().toString(QDateTime::currentDateTime(), QStringLiteral("yyyyMMdd-HHmmss"));
    system.Record(dir.filePath(QStringLiteral("%1-Crash.%2.%3")
                                   .arg(SystemSession::Native().SessionId())
                                   .arg(start)
                                   .arg(QCoreApplication::applicationPid()) +
                               system.RecordSuffix() + QLatin1String(New)));
}

QDateTime CrashRecords::Newest(const QString& folder) {
    const QFileInfoList records = NewestFirst(QDir(folder));
    return records.isEmpty() ? QDateTime() : records.first().lastModified();
}
