#pragma once

#include <QDeadlineTimer>
#include <QThreadPool>
#include <QtConcurrent>
#include <memory>
#include <type_traits>
#include <utility>

/// Threads for the long work of one part of the program. The global ones would hold the program's end back
/// until all of their work is done. The thread that made it.
class Workers {
public:
    explicit Workers(int threads);
    /// What still runs then goes on by itself, and must therefore work on copies.
    ~Workers();

    /// Does some work and tells its result, or `failed`, with a log line, when it ends with an exception.
    template <class Work, class Result = std::invoke_result_t<Work>>
    QFuture<Result> Run(Work work, std::invoke_result_t<Work> failed) {
        return QtConcurrent::run(m_pool.get(),
                                 [work = std::move(work), failed = std::move(failed)]() mutable -> Result {
                                     try {
                                         return work();
                                     } catch (const std::exception& exception) {
                                         LogException(exception);
                                         return failed;
                                     }
                                 });
    }

    /// Gives up what has not begun, and waits until the deadline for what has. The work was cancelled before.
    void Join(QDeadlineTimer deadline);

private:
    static void LogException(const std::exception& exception);

    std::unique_ptr<QThreadPool> m_pool;
};
