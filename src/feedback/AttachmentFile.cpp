#include "feedback/AttachmentFile.h"

#include "platform/security/LogText.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString ShownName(const QFileInfo& info) {
    return QString::fromStdString(LogText(info.fileName()));
}

Refusal Judge(const QFileInfo& info) {
    if (info.isDir())
        return Refusal::Folder;
    QFile file(info.filePath());
    char first = 0;
    // Reading what is no plain file may wait forever.
    if (!info.isFile() || !file.open(QIODevice::ReadOnly) || (info.size() > 0 && !file.getChar(&first)))
        return Refusal::Unreadable;
    if (info.size() == 0)
        return Refusal::Empty;
    return info.size() > AttachmentFile::MostBytes ? Refusal::TooLarge : Refusal::None;
}

} // namespace

QVector<AttachmentFile> AttachmentFile::Unreadable(const QStringList& paths) {
    QVector<AttachmentFile> files;
    for (const QString& path : paths)
        files.append({path, ShownName(QFileInfo(path)), path, 0, Refusal::Unreadable, nullptr});
    return files;
}

QVector<AttachmentFile> AttachmentFile::Inspect(const QStringList& paths) {
    QVector<AttachmentFile> files;
    for (const QString& path : paths) {
        const QFileInfo info(QDir::cleanPath(path));
        files.append({path, ShownName(info), info.canonicalFilePath(), info.size(), Judge(info), nullptr});
    }
    return files;
}

QVector<AttachmentFile> AttachmentFile::Save(const QImage& picture, const QString& name,
                                             const QString& tempFolder) {
    const auto folder = std::make_shared<QTemporaryDir>(tempFolder + QStringLiteral("/picture-XXXXXX"));
    const QString path = folder->filePath(name);
    if (!folder->isValid() || !picture.save(path, "PNG"))
        return Unreadable({path});
    QVector<AttachmentFile> files = Inspect({path});
    files.first().folder = folder;
    return files;
}
