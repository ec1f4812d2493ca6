#pragma once

#include <QCoreApplication>
#include <QThread>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

/// The wish to end long work early. Copies stand for the same wish. Any thread.
class Cancellation {
public:
    /// The work ends as soon as it looks: within a tenth of a second where it waits for the network.
    void Cancel() const { *m_cancelled = true; }
    bool IsCancelled() const { return *m_cancelled; }

private:
    std::shared_ptr<std::atomic_bool> m_cancelled = std::make_shared<std::atomic_bool>(false);
};

/// How the outside takes part in one piece of long work.
struct TaskControl {
    /// Called on the working thread, often, and never after the work has returned: bytes done and bytes in
    /// all, which is -1 while that is not known. May be empty.
    using Progress = std::function<void(std::int64_t done, std::int64_t total)>;

    Cancellation cancellation;
    Progress onProgress;

    bool IsCancelled() const { return cancellation.IsCancelled(); }
    void Tell(std::int64_t done, std::int64_t total) const {
        if (onProgress)
            onProgress(done, total);
    }
};

/// Whether the calling thread is the one that must not wait.
inline bool IsGuiThread() {
    return QCoreApplication::instance() && QCoreApplication::instance()->thread() == QThread::currentThread();
}
