#pragma once

#include <algorithm>

/// Waiting times between attempts to connect: 250 ms, doubling to 5 s, from the start after a success.
class ReconnectBackoff {
public:
    static constexpr int FirstMs = 250;
    static constexpr int LastMs = 5000;

    /// Milliseconds to wait before the next attempt.
    int Next() {
        const int wait = m_next;
        m_next = std::min(m_next * 2, LastMs);
        return wait;
    }
    void Reset() { m_next = FirstMs; }

private:
    int m_next = FirstMs;
};
