#include "messages/FileFetch.h"

#include "messages/FileNames.h"
#include "platform/system/SystemSession.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QStorageInfo>
#include <QUuid>
#include <algorithm>
#include <glog/logging.h>

namespace {

constexpr qint64 LargestPicture = 64 * 1024 * 1024; // in bytes
constexpr qint64 MostPixels = 50 * 1000 * 1000;
constexpr QSize ShownSize(1920, 1080);
constexpr std::int64_t Piece = 1024 * 1024; // no more is written at once

/// Removes what a program that was ended has left of its downloads. None of them takes a day.
void RemoveLeftOvers(const QDir& folder) {
    static const QRegularExpression part(QStringLiteral("^\\.[0-9a-f-]{36}\\.part"));
    const QDateTime oldest = QDateTime::currentDateTime().addDays(-1);
    for (const QFileInfo& file :
         folder.entryInfoList({QStringLiteral(".*.part*")}, QDir::Files | QDir::Hidden))
        if (part.match(file.fileName()).hasMatch() && file.lastModified() < oldest)
            QFile::remove(file.filePath());
}

bool LacksRoom(const QString& folder, std::int64_t needed) {
    const qint64 room = QStorageInfo(folder).bytesAvailable();
    return room >= 0 && room < needed;
}

} // namespace

FileFetchOutcome FetchFile(const FileFetchRequest& request, const TaskControl& control) {
    const QDir folder(request.folder);
    QDir().mkpath(request.folder);
    RemoveLeftOvers(folder);
    const QString part =
        folder.filePath(QStringLiteral(".%1.part").arg(QUuid::createUuid().toString(QUuid::WithoutBraces)));
    std::int64_t needed = Piece; // what was written is gone again when the room is looked at
    const TaskControl watched{control.cancellation, [&](std::int64_t done, std::int64_t total) {
                                  needed = std::max(total, done + Piece);
                                  control.Tell(done, total);
                              }};
    FileFetchOutcome outcome;
    WebFailure failure;
    if (!RyxWebClient::Instance()->DownloadFile(
            {request.file.url, part.toStdWString(), request.maxBytes, request.file.md5}, watched, &failure)) {
        outcome.error = failure.error;
        outcome.diskFull = failure.error == WebError::File && LacksRoom(request.folder, needed);
        return outcome;
    }
    LOG_IF(WARNING, !SystemSession::Native().MarkFromInternet(part))
        << "FetchFile could not mark a file as one from the internet";
    if (!control.IsCancelled())
        outcome.path = FileNames::Place(part, FileNames::Safe(QString::fromStdString(request.file.name)));
    if (outcome.path.isEmpty()) {
        QFile::remove(part);
        outcome.error = control.IsCancelled() ? WebError::Cancelled : WebError::File;
    }
    return outcome;
}

FileFetchOutcome SaveCopy(const QString& file, const QString& target) {
    FileFetchOutcome outcome;
    outcome.path = FileNames::Copy(file, target);
    if (outcome.path.isEmpty()) {
        outcome.error = WebError::File;
        outcome.diskFull = LacksRoom(QFileInfo(target).path(), QFileInfo(file).size());
    }
    return outcome;
}

QImage ReadPicture(const QString& path) {
    static const QSet<QByteArray> formats{"png", "jpeg", "gif", "bmp", "webp"};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (QFileInfo(path).size() > LargestPicture || !reader.canRead() || !formats.contains(reader.format()))
        return {};
    const QSize size = reader.size();
    if (size.isEmpty() || qint64(size.width()) * size.height() > MostPixels)
        return {};
    if (size.width() > ShownSize.width() || size.height() > ShownSize.height())
        reader.setScaledSize(size.scaled(ShownSize, Qt::KeepAspectRatio));
    return reader.read();
}
