#pragma once

#include <QObject>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

/// How long a thread has not answered, judged from time to time. Plain arithmetic; owned by one thread.
class StallMeter {
public:
    static constexpr int TellMs = 2000;
    static constexpr int GiveUpMs = 20000;

    enum class Verdict {
        Well,      ///< nothing to tell
        Stalled,   ///< silent for longer than TellMs, told once
        Recovered, ///< answered again after that
        Hopeless,  ///< silent for GiveUpMs while it must not be
    };

    /// `elapsedMs` is the time since the last look, `answered` whether the thread has answered since,
    /// `mustAnswer` whether a silence may end the program.
    Verdict Look(int elapsedMs, bool answered, bool mustAnswer);

    /// The length of the silence that goes on, or that Recovered told the end of, in milliseconds.
    int SilentMs() const { return m_silentMs; }

private:
    int m_silentMs = 0;
    bool m_told = false;
    bool m_over = false;
};

/// Sees when the GUI thread hangs: logs each stall beyond two seconds with its length and, while the screen
/// is locked, ends the program after twenty, so that a new start can lock it again. Quiet while all is well.
/// Lives on the GUI thread, watches from a thread of its own.
class Watchdog : public QObject {
public:
    /// The program's exit code when it is ended.
    static constexpr int ExitCode = 71;

    Watchdog();
    ~Watchdog() override;

    /// While set, a hopeless stall ends the program. Any thread.
    void SetLocked(bool locked) { m_locked = locked; }

    /// Logs the reason and ends the process within a second, even when the log hangs. Any thread.
    [[noreturn]] static void EndProcess(const std::string& reason);

protected:
    bool event(QEvent* event) override;

private:
    void Watch();

    std::atomic<bool> m_locked{false};
    std::atomic<bool> m_answered{true};
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_ends = false;
    std::thread m_thread; // last: it uses all of the above
};
