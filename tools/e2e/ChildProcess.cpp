#include "ChildProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

/// A pipe whose ends no other child inherits.
std::array<int, 2> MakePipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::runtime_error(std::string("pipe: ") + std::strerror(errno));
    return ends;
}

void CloseEnd(int& end) {
    if (end >= 0)
        ::close(end);
    end = -1;
}

[[noreturn]] void BecomeProgram(const ChildProcess::Words& command, const ChildProcess::Words& environment,
                                const std::string& errorFile, pid_t parent) {
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        ::_exit(127);
    const int errors =
        ::open(errorFile.empty() ? "/dev/null" : errorFile.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
    if (errors >= 0)
        ::dup2(errors, STDERR_FILENO);
    for (const std::string& word : environment) {
        const auto equals = word.find('=');
        if (equals == std::string::npos)
            ::unsetenv(word.c_str());
        else
            ::setenv(word.substr(0, equals).c_str(), word.c_str() + equals + 1, 1);
    }
    std::vector<char*> arguments;
    for (const std::string& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    ::execvp(arguments[0], arguments.data());
    ::_exit(127);
}

} // namespace

void SleepBetweenPolls() {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

void ChildProcess::Start(const Words& command, const Words& environment, const std::string& errorFile) {
    Kill();
    auto [inputRead, inputWrite] = MakePipe();
    auto [outputRead, outputWrite] = MakePipe();
    const pid_t parent = ::getpid();
    m_id = ::fork();
    if (m_id == 0) {
        ::dup2(inputRead, STDIN_FILENO);
        ::dup2(outputWrite, STDOUT_FILENO);
        BecomeProgram(command, environment, errorFile, parent);
    }
    ::close(inputRead);
    ::close(outputWrite);
    m_input = inputWrite;
    m_output = outputRead;
    m_text.clear();
    m_result.reset();
    if (m_id < 0) {
        m_id = 0;
        throw std::runtime_error("cannot start " + command.front());
    }
    ::setpgid(m_id, m_id); // here too, so that Kill finds the group from now on
    ::fcntl(m_output, F_SETFL, O_NONBLOCK);
}

void ChildProcess::Write(const std::string& text) {
    // A program that has ended is noticed by what it does not answer, not by a signal here.
    ::signal(SIGPIPE, SIG_IGN);
    for (std::size_t written = 0; written < text.size();) {
        const ssize_t count = ::write(m_input, text.data() + written, text.size() - written);
        if (count <= 0)
            return;
        written += static_cast<std::size_t>(count);
    }
}

const std::string& ChildProcess::Output() {
    std::array<char, 4096> bytes;
    for (ssize_t count = 0; m_output >= 0 && (count = ::read(m_output, bytes.data(), bytes.size())) > 0;)
        m_text.append(bytes.data(), static_cast<std::size_t>(count));
    return m_text;
}

bool ChildProcess::IsRunning() {
    return m_id > 0 && !Result();
}

std::optional<int> ChildProcess::Result() {
    int status = 0;
    if (!m_result && m_id > 0 && ::waitpid(m_id, &status, WNOHANG) == m_id)
        m_result = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    return m_result;
}

void ChildProcess::Kill() {
    if (m_id > 0) {
        ::kill(-m_id, SIGKILL);
        int status = 0;
        if (!m_result && ::waitpid(m_id, &status, 0) == m_id)
            m_result = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
        Output();
    }
    m_id = 0;
    CloseEnd(m_input);
    CloseEnd(m_output);
}
