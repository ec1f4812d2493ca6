#pragma once

#include <QDeadlineTimer>
#include <QThreadPool>
#include <QtConcurrent>
#include <memory>
#include <utility>

/// Threads for the long work of one page. The global ones would hold the program's end back until all of
/// their work is done. GUI thread.
class Workers {
public:
    explicit Workers(int threads);
    /// What still runs then goes on by itself, and must therefore work on copies.
    ~Workers();

    template <class Work>
    auto Run(Work&& work) {
        return QtConcurrent::run(m_pool.get(), std::forward<Work>(work));
    }

    /// Gives up what has not begun, and waits until the deadline for what has. The work was cancelled before.
    void Join(QDeadlineTimer deadline);

private:
    std::unique_ptr<QThreadPool> m_pool;
};
