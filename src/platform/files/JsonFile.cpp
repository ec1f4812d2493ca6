#include "platform/files/JsonFile.h"

#include "platform/security/LogText.h"
#include "platform/system/SystemSession.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <glog/logging.h>

QJsonDocument JsonFile::Read(const QString& file, qint64 most) {
    // Opening something else, such as a pipe that nobody writes to, could take for ever.
    const QFileInfo info(file);
    QFile source(file);
    if (!info.isFile() || info.isSymLink() || info.size() > most || !source.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(source.readAll());
}

void JsonFile::SetAside(const QString& file) {
    const QFileInfo info(file);
    if (!info.exists() && !info.isSymLink())
        return;
    const QString aside = file + QStringLiteral(".broken");
    QFile::remove(aside);
    LOG(WARNING) << "JsonFile::SetAside cannot use " << LogText(info.fileName()) << ", which is "
                 << (QFile::rename(file, aside) ? "set aside" : "left as it is");
}

bool JsonFile::Write(const QString& file, const QJsonDocument& document) {
    QDir().mkpath(QFileInfo(file).path());
    QSaveFile target(file);
    const bool written = target.open(QIODevice::WriteOnly) && target.write(document.toJson()) >= 0 &&
                         target.commit() && SystemSession::Native().KeepPrivate(file);
    LOG_IF(WARNING, !written) << "JsonFile::Write " << LogText(QFileInfo(file).fileName()) << ": "
                              << LogText(target.errorString());
    return written;
}
