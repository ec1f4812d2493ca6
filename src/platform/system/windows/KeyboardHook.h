#pragma once

#include <atomic>
#include <thread>

/// Keeps all keys that KeyFilter does not let pass from the whole session. It stands on a thread of its own,
/// so that keys never wait for the program's work. GUI thread.
class KeyboardHook {
public:
    ~KeyboardHook() { Stop(); }

    /// Returns when the hook stands; one that stands is made anew.
    void Start();
    void Stop();

private:
    std::thread m_thread;
    std::atomic<bool> m_stopping{false};
    unsigned long m_threadId = 0;
};
