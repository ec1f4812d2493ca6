#include "feedback/ReportArchive.h"

#include "platform/files/ZipUtility.h"

#include <QFileInfo>
#include <QScopeGuard>
#include <QSet>
#include <QTemporaryFile>
#include <filesystem>

namespace {

/// Attachments from different folders may bear the same name.
QString FreeName(const QString& name, QSet<QString>& taken) {
    QString free = name;
    for (int number = 2; taken.contains(free.toLower()); ++number)
        free = QStringLiteral("%1-%2").arg(number).arg(name);
    taken.insert(free.toLower());
    return QStringLiteral("attachments/") + free;
}

} // namespace

ReportArchive::Result ReportArchive::Save(const TaskControl& control) const {
    if (QFileInfo::exists(target) && !mayReplace)
        return Result::Exists;
    QTemporaryFile description(QString::fromStdWString(tempFolder) + QStringLiteral("/report-XXXXXX"));
    const QByteArray bytes = text.toUtf8();
    if (!description.open() || description.write(bytes) != bytes.size() || !description.flush())
        return Result::Failed;

    QVector<NamedFile> files{{QStringLiteral("report.txt"), description.fileName(), true}};
    for (const NamedFile& log : ListFiles(QString::fromStdWString(logFolder)))
        files.append({QStringLiteral("log/") + log.name, log.path});
    QSet<QString> taken;
    for (const QString& attachment : attachments)
        files.append({FreeName(QFileInfo(attachment).fileName(), taken), attachment, true});

    const QString part = target + QStringLiteral(".part");
    const auto remove = qScopeGuard([&part] { QFile::remove(part); });
    if (!ZipUtility::CreateZip(files, part.toStdWString(), control))
        return Result::Failed;
    if (mayReplace) {
        std::error_code failure;
        std::filesystem::rename(part.toStdWString(), target.toStdWString(), failure);
        return failure ? Result::Failed : Result::Saved;
    }
    if (QFile::rename(part, target))
        return Result::Saved;
    return QFileInfo::exists(target) ? Result::Exists : Result::Failed;
}
