#pragma once

#include "controllers/ControlPanelWatch.h"

#include <QThread>
#include <atomic>
#include <condition_variable>
#include <mutex>

/// The thread that looks the Control Panel's process up and watches it. Of idle priority: while there is
/// something to watch it looks at the desktop without a pause, otherwise it waits. Lives on the GUI thread.
class ControlPanelThread : public QThread {
    Q_OBJECT

public:
    ControlPanelThread(const SystemDesktop& desktop, const SystemProcesses& processes);
    /// Ends the thread and waits for that.
    ~ControlPanelThread() override;

    /// Watching begins anew; the thread is started if there is none yet.
    void Rearm();

    /// Has the process looked up once; LookedUp tells what came of it.
    void LookUp();

signals:
    /// The process's number, 0 when there is none.
    void LookedUp(quint32 pid);

private:
    void run() override { ThreadAction(); }
    void ThreadAction();
    ProcessIdentity GetControlPanelPid() const;
    void Wake(std::atomic<bool>& flag, bool value);

    const SystemProcesses& m_processes;
    ControlPanelWatch m_watch; // the thread's alone
    std::atomic<bool> m_running{true};
    std::atomic<bool> m_rearm{false};
    std::atomic<bool> m_lookUp{false};
    std::mutex m_mutex; // so that no wake is lost
    std::condition_variable m_wake;
};
