#pragma once

#include "platform/files/NamedFile.h"
#include "platform/files/TaskControl.h"

#include <string>

/// ZIP archives. Worker threads; takes long.
class ZipUtility {
public:
    /// Packs files into a new archive, with their names in UTF-8. Those that cannot be read are left out,
    /// each with a log line, unless they are needed. A file that grows meanwhile is packed as long as it was
    /// at first, one that is cut with what is left of it. Progress counts the bytes of the files.
    ///
    /// False, with a log line, when nothing was left to pack, when a needed file cannot be read, when the
    /// archive cannot be written and when the work was cancelled; what stood at `zipPath`, if anything did,
    /// still stands there then, and nothing else is left. Otherwise the archive is whole and in its place.
    static bool CreateZip(const QVector<NamedFile>& files, const std::wstring& zipPath,
                          const TaskControl& control = {});

    /// The same with everything that ListFiles finds in `directory`.
    static bool CreateZipFromDir(const std::wstring& directory, const std::wstring& zipPath,
                                 const TaskControl& control = {});
};
