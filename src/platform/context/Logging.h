#pragma once

#include <string>

/// Starts the process's log: files "<dir>/<name>.<time>.<pid>" of at most `maxFileMegabytes`, of which
/// the newest `maxFiles` are kept. Qt's own messages go into it, too. Lines written before go to standard
/// error. Main thread.
void InitLogger(const std::string& name, const std::string& dir, const unsigned& maxFileMegabytes,
                const unsigned& maxFiles);

/// Writes out what is buffered and ends the log. Does nothing when it is not started.
void ReleaseLogger();
