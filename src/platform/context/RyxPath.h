#pragma once

#include <string>

/// Places of the agent platform's files. GUI thread.
class RyxPath {
public:
    /// Folder of the log files; exists afterwards, if it can be made.
    static std::wstring GetRyxLogDir();

    /// Folder of this user's own data; may not exist yet.
    static std::wstring GetUserDataDir();

    /// Where the user keeps documents; the home folder when there is no such place.
    static std::wstring GetDocumentsDir();

    /// Folder of temporary files, closed to other users; exists afterwards, if it can be made. What is left
    /// in it is removed at a later start.
    static std::wstring GetRyxTempDir();

    /// Removes what lies in the folder of temporary files for more than a day, on a thread of the pool.
    static void RemoveOldTempFiles();
};
