#pragma once

#include <string>

/// Keeps crash reporting running while it lives. Main thread.
class SentryGuard {
public:
    /// Starts crash reporting for `release`; reports wait in the folder `databasePath`. A failure is
    /// logged and start-up goes on.
    SentryGuard(const std::string& release, const std::wstring& databasePath);
    /// Sends what waits and ends crash reporting.
    ~SentryGuard(); // NOLINT(performance-trivially-destructible): not where crash reporting is built in

    SentryGuard(const SentryGuard&) = delete;
    SentryGuard& operator=(const SentryGuard&) = delete;
};
