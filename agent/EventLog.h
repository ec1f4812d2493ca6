#pragma once

#include <mutex>
#include <ostream>
#include <string>

/// What the agent service tells: one line for each thing that happened, written out at once, so that a
/// reader at the other end of a pipe sees it when it happens. docs/scenarios.md lists the lines. Any thread.
class EventLog {
public:
    explicit EventLog(std::ostream& out) : m_out(out) {}

    void Line(const std::string& text) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_out << text << '\n' << std::flush;
    }

private:
    std::mutex m_mutex;
    std::ostream& m_out;
};
