#include "feedback/ReportArchive.h"

#include "platform/files/ZipUtility.h"
#include "platform/security/LogText.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <glog/logging.h>

namespace {

bool WriteText(const QString& path, const QString& text) {
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

/// A file that cannot be read is left out, as in the report that is sent.
bool CopyLogs(const QDir& from, const QDir& to, const Cancellation& cancellation) {
    QDirIterator files(from.path(), QDir::Files | QDir::Hidden | QDir::NoSymLinks,
                       QDirIterator::Subdirectories);
    while (files.hasNext() && !cancellation.IsCancelled()) {
        const QString path = files.next();
        const QString copy = to.filePath(from.relativeFilePath(path));
        QDir().mkpath(QFileInfo(copy).path());
        QFile source(path);
        if (!source.open(QIODevice::ReadOnly))
            LOG(INFO) << "ReportArchive::Save leaves out " << LogText(path);
        else if (!source.copy(copy))
            return false; // a full disk must not cost the logs
    }
    return true;
}

/// Attachments from different folders may bear the same name.
QString FreePath(const QDir& folder, const QString& name) {
    QString path = folder.filePath(name);
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = folder.filePath(QStringLiteral("%1-%2").arg(number).arg(name));
    return path;
}

} // namespace

ReportArchive::Result ReportArchive::Save(const TaskControl& control) const {
    if (QFileInfo::exists(target) && !mayReplace)
        return Result::Exists;
    const QTemporaryDir parts(QString::fromStdWString(tempFolder) + QStringLiteral("/report-XXXXXX"));
    const QDir folder(parts.path());
    if (!parts.isValid() || !folder.mkpath(QStringLiteral("log")) ||
        !folder.mkpath(QStringLiteral("attachments")) ||
        !WriteText(folder.filePath(QStringLiteral("report.txt")), text))
        return Result::Failed;
    if (!CopyLogs(QDir(QString::fromStdWString(logFolder)), QDir(folder.filePath(QStringLiteral("log"))),
                  control.cancellation))
        return Result::Failed;
    for (const QString& attachment : attachments) {
        const QString copy =
            FreePath(QDir(folder.filePath(QStringLiteral("attachments"))), QFileInfo(attachment).fileName());
        if (control.IsCancelled() || !QFile::copy(attachment, copy)) {
            LOG(INFO) << "ReportArchive::Save failed at " << LogText(attachment);
            return Result::Failed;
        }
    }
    if (QFileInfo::exists(target) && !mayReplace)
        return Result::Exists;
    return ZipUtility::CreateZipFromDir(parts.path().toStdWString(), target.toStdWString(), control)
               ? Result::Saved
               : Result::Failed;
}
