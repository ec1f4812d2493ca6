#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

/// Polls until `condition` holds; false when it does not within `timeout`.
template <class Condition>
bool WaitUntil(Condition condition, std::chrono::milliseconds timeout = std::chrono::seconds(20));

/// Polls until `condition` holds and goes on holding for a while. What has just come may not have the
/// keyboard and the mouse yet: a window manager gives the focus elsewhere first.
template <class Condition>
bool WaitUntilSettled(Condition condition);

/// A program that was started here, with pipes to its standard input and output. It leads a process
/// group of its own that ends with this object and, if this process dies, with it.
class ChildProcess {
public:
    using Words = std::vector<std::string>;

    ChildProcess() = default;
    ~ChildProcess() { Kill(); }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// `environment` holds "NAME=value" words that change the inherited environment; "NAME" alone takes the
    /// variable away. Standard error goes to `errorFile`, or nowhere when that is empty.
    /// Throws std::runtime_error when the program cannot be started.
    void Start(const Words& command, const Words& environment = {}, const std::string& errorFile = {});

    void Write(const std::string& text);

    /// All that standard output has brought so far.
    const std::string& Output();

    pid_t Id() const { return m_id; }
    bool IsRunning();
    /// The exit code, or minus the number of the signal that ended it; nothing while it runs.
    std::optional<int> Result();

    /// Ends the program and everything it started, without giving it a chance to tidy up.
    void Kill();

private:
    pid_t m_id = 0;
    int m_input = -1;
    int m_output = -1;
    std::string m_text;
    std::optional<int> m_result;
};

void SleepBetweenPolls();

template <class Condition>
bool WaitUntil(Condition condition, std::chrono::milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        SleepBetweenPolls();
    }
    return true;
}

template <class Condition>
bool WaitUntilSettled(Condition condition) {
    return WaitUntil([&] {
        return condition() && !WaitUntil([&] { return !condition(); }, std::chrono::milliseconds(300));
    });
}
