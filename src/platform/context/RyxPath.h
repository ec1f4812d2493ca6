#pragma once

#include <string>

/// Places of the agent platform's files.
class RyxPath {
public:
    /// Folder of the log files; exists afterwards, if it can be made.
    static std::wstring GetRyxLogDir();
};
