#include "platform/context/RyxPath.h"

#include "platform/context/AppConfigData.h"
#include "platform/security/LogText.h"
#include "platform/system/SystemSession.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThreadPool>
#include <glog/logging.h>

namespace {

QString TempFolder() {
    return QString::fromStdWString(RyxPath::GetUserDataDir()) + QStringLiteral("/temp");
}

/// Removes what has lain in a folder, which need not be there, for more than a day.
void RemoveOldFiles(const QString& folder) {
    const QDateTime dayAgo = QDateTime::currentDateTime().addDays(-1);
    for (const QFileInfo& entry :
         QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
        if (entry.lastModified() >= dayAgo)
            continue;
        const bool isFolder = entry.isDir() && !entry.isSymLink();
        const bool removed =
            isFolder ? QDir(entry.filePath()).removeRecursively() : QFile::remove(entry.filePath());
        LOG(INFO) << "RyxPath::RemoveOldTempFiles " << (removed ? "removed " : "could not remove ")
                  << LogText(entry.fileName());
    }
}

} // namespace

std::wstring RyxPath::GetRyxLogDir() {
    const std::string& chosen = AppConfigData::Instance()->logFolder;
    const QString folder =
        chosen.empty() ? SystemSession::Native().LogFolder() : QString::fromStdString(chosen);
    QDir().mkpath(folder);
    return QDir::toNativeSeparators(folder).toStdWString();
}

std::wstring RyxPath::GetUserDataDir() {
    const std::string& chosen = AppConfigData::Instance()->dataFolder;
    return (chosen.empty() ? SystemSession::Native().UserDataFolder() : QString::fromStdString(chosen))
        .toStdWString();
}

std::wstring RyxPath::GetDocumentsDir() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return (QFileInfo(folder).isDir() ? folder : QDir::homePath()).toStdWString();
}

std::wstring RyxPath::GetRyxTempDir() {
    const QString folder = TempFolder();
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return QDir::toNativeSeparators(folder).toStdWString();
}

void RyxPath::RemoveOldTempFiles() {
    QThreadPool::globalInstance()->start([folder = TempFolder()] { RemoveOldFiles(folder); });
}
