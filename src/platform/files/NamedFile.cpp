#include "platform/files/NamedFile.h"

#include <QDir>

namespace {

void List(const QDir& folder, const QString& prefix, QVector<NamedFile>& files) {
    const auto what = QDir::Files | QDir::Dirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QFileInfo& entry : folder.entryInfoList(what, QDir::Name)) {
        const QString name = prefix + entry.fileName();
        if (entry.isSymLink() || entry.isJunction())
            continue;
        if (entry.isDir())
            List(QDir(entry.filePath()), name + QLatin1Char('/'), files);
        else if (entry.isFile())
            files.append({name, entry.absoluteFilePath()});
    }
}

} // namespace

QVector<NamedFile> ListFiles(const QString& folder) {
    QVector<NamedFile> files;
    List(QDir(folder), {}, files);
    return files;
}
