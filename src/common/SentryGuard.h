#pragma once

#include <string>

/// Keeps crash reporting running while it lives. Main thread.
class SentryGuard {
public:
    /// Starts crash reporting for `release`; reports wait in the folder `databasePath`. A failure is
    /// logged and start-up goes on.
    SentryGuard(const std::string& release, const std::wstring& databasePath);
    ~SentryGuard();

    /// Sends what waits and ends crash reporting; a second call does nothing.
    void Close();

    SentryGuard(const SentryGuard&) = delete;
    SentryGuard& operator=(const SentryGuard&) = delete;

private:
    bool m_open = false;
};
