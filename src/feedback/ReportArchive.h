#pragma once

#include "platform/files/TaskControl.h"

#include <QString>
#include <QStringList>
#include <string>

/// A whole report as a ZIP archive, for any other way to the administrator.
struct ReportArchive {
    enum class Result {
        Saved,
        Exists,       ///< something stands there that may not be replaced
        NoPlace,      ///< the target cannot be written
        NoRoom,       ///< there is not room enough for it
        NoAttachment, ///< one that cannot be read any more
        Failed,
    };

    std::wstring logFolder;
    std::wstring tempFolder;
    QString text;            ///< what stands in report.txt
    QStringList attachments; ///< paths
    QString target;          ///< path of the archive
    bool mayReplace = false;

    /// Packs text, logs and attachments. What stands at the target stays, unless it may be replaced, and then
    /// until the archive is whole. Logs that cannot be read are left out; without an attachment
    /// the report is not saved. Worker threads.
    Result Save(const TaskControl& control) const;
};
