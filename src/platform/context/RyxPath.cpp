#include "platform/context/RyxPath.h"

#include "platform/context/AppConfigData.h"
#include "platform/security/LogText.h"
#include "platform/system/FileRights.h"
#include "platform/system/SystemSession.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThreadPool>
#include <glog/logging.h>

namespace {

QString DataFolder() {
    const std::string& chosen = AppConfigData::Instance()->dataFolder;
    return chosen.empty() ? SystemSession::Native().UserDataFolder() : QString::fromStdString(chosen);
}

QString OwnLogFolder() {
    return DataFolder() + QStringLiteral("/log");
}

/// The folder that all users share, if an administrator has made it, which nobody else can in a folder that
/// is trusted; otherwise one of the user's own.
QString LogFolder() {
    if (const std::string& chosen = AppConfigData::Instance()->logFolder; !chosen.empty())
        return QString::fromStdString(chosen);
    const QFileInfo shared(SystemSession::Native().SharedLogFolder());
    const bool isUsed =
        shared.isDir() &&
        FileRights::Of(std::filesystem::u8path(shared.path().toStdString())).WhyNotTrusted().empty();
    return isUsed ? shared.filePath() : OwnLogFolder();
}

QString TempFolder() {
    return DataFolder() + QStringLiteral("/temp");
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
    QString folder = LogFolder();
    if (!QDir().mkpath(folder)) { // a name that cannot be, or a place that the user may not write
        folder = OwnLogFolder();
        QDir().mkpath(folder);
    }
    return QDir::toNativeSeparators(folder).toStdWString();
}

std::wstring RyxPath::GetUserDataDir() {
    return DataFolder().toStdWString();
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
