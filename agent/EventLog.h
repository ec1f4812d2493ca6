#pragma once

#include <ostream>
#include <string>

/// What the agent service tells: one line for each thing that happened, written out at once, so that a
/// reader at the other end of a pipe sees it when it happens. docs/scenarios.md lists the lines.
class EventLog {
public:
    explicit EventLog(std::ostream& out) : m_out(out) {}

    void Line(const std::string& text) { m_out << text << '\n' << std::flush; }

private:
    std::ostream& m_out;
};
