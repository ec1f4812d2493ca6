#pragma once

#include "entity/FileEntities.h"
#include "platform/web/RyxWebClient.h"

#include <QImage>
#include <QString>

/// A file to bring to this device.
struct FileFetchRequest {
    FileInfoParams file;
    QString folder; ///< where it shall stand; made if need be
    std::int64_t maxBytes = 0;
};

/// Where the file stands, or why it does not.
struct FileFetchOutcome {
    QString path;
    WebError error = WebError::None;
    bool diskFull = false;
};

/// Downloads the file beside its place, marks it as one from the internet, and renames it then: nothing
/// unfinished bears its name, and nothing is overwritten. Worker thread.
FileFetchOutcome FetchFile(const FileFetchRequest& request, const TaskControl& control);

/// Copies a file to `target`, or to a name beside it that is free. Worker thread.
FileFetchOutcome SaveCopy(const QString& file, const QString& target);

/// The picture that a file contains, whatever its name says, at most as large as a screen; null when it is
/// none, is broken, or would be too large to decode. Worker thread.
QImage ReadPicture(const QString& path);
