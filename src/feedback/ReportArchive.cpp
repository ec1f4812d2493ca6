#include "feedback/ReportArchive.h"

#include "platform/files/ZipUtility.h"

#include <QFileInfo>
#include <QSet>
#include <QStorageInfo>
#include <QTemporaryFile>

namespace {

/// Attachments from different folders may bear the same name.
QString FreeName(const QString& name, QSet<QString>& taken) {
    QString free = name;
    for (int number = 2; taken.contains(free.toLower()); ++number)
        free = QStringLiteral("%1-%2").arg(number).arg(name);
    taken.insert(free.toLower());
    return QStringLiteral("attachments/") + free;
}

/// Why an archive of these files has not come to its place, as far as that can be seen afterwards.
ReportArchive::Result Reason(const QVector<NamedFile>& files, const QString& target) {
    qint64 bytes = 0;
    for (const NamedFile& file : files) {
        const QFileInfo info(file.path);
        if (file.isNeeded && !info.isReadable())
            return ReportArchive::Result::NoAttachment;
        bytes += info.size();
    }
    const QStorageInfo disk(QFileInfo(target).path());
    return disk.isValid() && disk.bytesAvailable() < bytes ? ReportArchive::Result::NoRoom
                                                           : ReportArchive::Result::Failed;
}

} // namespace

ReportArchive::Result ReportArchive::Save(const TaskControl& control) const {
    QTemporaryFile description(QString::fromStdWString(tempFolder) + QStringLiteral("/report-XXXXXX"));
    const QByteArray bytes = text.toUtf8();
    if (!description.open() || description.write(bytes) != bytes.size() || !description.flush())
        return Result::Failed;

    QVector<NamedFile> files{{QStringLiteral("report.txt"), description.fileName(), true}};
    // A user will have it: no log in it, an attached one neither, may tell the hashes of passwords.
    for (const NamedFile& log : ListFiles(QString::fromStdWString(logFolder)))
        files.append({QStringLiteral("log/") + log.name, log.path, false, true});
    QSet<QString> taken;
    for (const QString& attachment : attachments)
        files.append({FreeName(QFileInfo(attachment).fileName(), taken), attachment, true, true});

    // The archive takes the place of what stands at the target: that is this, unless more may be replaced.
    QFile place(target);
    const bool isOurs = place.open(QIODevice::WriteOnly | QIODevice::NewOnly);
    if (!isOurs && !mayReplace)
        return place.exists() ? Result::Exists : Result::NoPlace;
    place.close();
    if (ZipUtility::CreateZip(files, target.toStdWString(), control))
        return Result::Saved;
    if (isOurs)
        place.remove();
    return Reason(files, target);
}
