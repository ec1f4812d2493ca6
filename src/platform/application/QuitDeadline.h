#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

/// Ends the process when quitting takes too long. Qt waits at its own end for the look-ups of host names that
/// it has begun, which nobody can cancel and which may take minutes without a name server. Lives longer than
/// the application object; GUI thread.
class QuitDeadline {
public:
    QuitDeadline() = default;
    /// In time: the process goes on.
    ~QuitDeadline();
    QuitDeadline(const QuitDeadline&) = delete;
    QuitDeadline& operator=(const QuitDeadline&) = delete;

    /// From now on this object has two seconds; then the process ends with `exitCode`. Nothing of the log is
    /// lost, which is written line by line.
    void Begin(int exitCode);

private:
    std::mutex m_mutex;
    std::condition_variable m_inTime;
    bool m_isInTime = false;
    std::thread m_thread;
};
