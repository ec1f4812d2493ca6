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
    /// work was cancelled; what stood at `zipPath`, if anything did, still stands there then, and nothing
    /// else is left. Otherwise the archive is whole and in its place.
    static bool CreateZipFromDir(const std::wstring& directory, const std::wstring& zipPath,
                                 const TaskControl& control = {});
};
