#pragma once

#include <string>

/// Keeps the process's log open while it lives. Main thread.
class LoggerGuard {
public:
    /// Starts the log `name` in the product's log folder, ten files of ten megabytes; with
    /// `sessionPrefix` the name gets the number of the user session and "-" in front.
    LoggerGuard(bool sessionPrefix, const std::string& name);
    ~LoggerGuard();

    LoggerGuard(const LoggerGuard&) = delete;
    LoggerGuard& operator=(const LoggerGuard&) = delete;
};
