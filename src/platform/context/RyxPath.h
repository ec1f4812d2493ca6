#pragma once

#include <string>

/// Places of the agent platform's files.
class RyxPath {
public:
    /// Folder of the log files; exists afterwards, if it can be made.
    static std::wstring GetRyxLogDir();

    /// Folder of this user's own data; may not exist yet.
    static std::wstring GetUserDataDir();
};
