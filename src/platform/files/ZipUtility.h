#pragma once

#include "platform/files/TaskControl.h"

#include <string>

/// ZIP archives. Worker threads; takes long.
class ZipUtility {
public:
    /// Packs every file of `directory` and of the folders below it into a new archive, with paths relative to
    /// `directory` in UTF-8. Links are left out, and so are files that cannot be read, each with a log line;
    /// a file that grows meanwhile is packed as long as it was at first. Progress counts the bytes of the
    /// files.
    ///
    /// False, with a log line, when nothing was left to pack, when the archive cannot be written and when the
    /// work was cancelled; then there is no `zipPath`, and what stood there before is unchanged. Otherwise
    /// the archive is whole and in the place of what stood there.
    static bool CreateZipFromDir(const std::wstring& directory, const std::wstring& zipPath,
                                 const TaskControl& control = {});
};
