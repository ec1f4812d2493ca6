#include "platform/ProductConstants.h"
#include "platform/system/SystemCrash.h"

#include <QFile>
#include <atomic>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <execinfo.h>
#include <fcntl.h>
#include <iostream>
#include <iterator>
#include <unistd.h>

namespace {

constexpr int Signals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};
constexpr unsigned EndSeconds = 4;

// Made before the crash: its handler may call nothing that allocates or locks.
char recordFile[PATH_MAX];
char handlerStack[64 * 1024]; // the thread's own may be what ran out
struct sigaction before[NSIG];
std::atomic<pid_t> crashedThread{0};

void WriteTrace(int signal, const siginfo_t& info) {
    const int file =
        ::open(recordFile, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (file < 0)
        return;
    char line[200];
    const int length = std::snprintf(line, sizeof line, "%s %s, process %d, thread %d: signal %d at %p\n",
                                     Product::Name, Product::Version, ::getpid(), ::gettid(), signal,
                                     info.si_code > 0 ? info.si_addr : nullptr);
    if (::write(file, line, static_cast<std::size_t>(length)) == length) {
        void* frames[100];
        ::backtrace_symbols_fd(frames, ::backtrace(frames, static_cast<int>(std::size(frames))), file);
    } else {
        ::unlink(recordFile); // the disk is full
    }
    ::close(file);
}

void OnCrash(int signal, siginfo_t* info, void*) {
    pid_t nobody = 0;
    if (crashedThread.compare_exchange_strong(nobody, ::gettid())) {
        ::alarm(EndSeconds);
        WriteTrace(signal, *info);
    } else if (nobody != ::gettid())
        for (;;) // the first one ends the process
            ::pause();
    // What stood there before gets the signal when this returns; as a rule that ends the process.
    ::sigaction(signal, &before[signal], nullptr);
    ::raise(signal);
}

class UnixCrash final : public SystemCrash {
public:
    void Record(const QString& file) const override {
        qstrncpy(recordFile, QFile::encodeName(file).constData(), sizeof recordFile);
        void* frame = nullptr;
        ::backtrace(&frame, 1); // loads what it needs

        ::signal(SIGALRM, SIG_DFL);
        stack_t stack{};
        stack.ss_sp = handlerStack;
        stack.ss_size = sizeof handlerStack;
        ::sigaltstack(&stack, nullptr);
        struct sigaction act {};
        act.sa_sigaction = OnCrash;
        act.sa_flags = SA_SIGINFO | SA_ONSTACK;
        for (const int signal : Signals)
            ::sigaction(signal, &act, &before[signal]);
    }

    QString RecordSuffix() const override { return QStringLiteral(".txt"); }

    void TellEnd(const std::string& reason) const override {
        std::cerr << Product::Name << " ends: " << reason << std::endl;
    }
};

} // namespace

const SystemCrash& SystemCrash::Native() {
    static const UnixCrash crash;
    return crash;
}
