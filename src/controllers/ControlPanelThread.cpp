#include "controllers/ControlPanelThread.h"

#include <thread>

namespace {

const QString HostName = QStringLiteral("explorer.exe");
const QString HostCommandLine =
    QStringLiteral("C:\\Windows\\explorer.exe /factory,{5BD95610-9434-43C2-886C-57852CC8A120} -Embedding");

} // namespace

ControlPanelThread::ControlPanelThread(const SystemDesktop& desktop, const SystemProcesses& processes)
    : m_processes(processes), m_watch(desktop, processes) {}

ControlPanelThread::~ControlPanelThread() {
    Wake(m_running, false);
    wait();
}

void ControlPanelThread::Rearm() {
    m_rearm = true;
    if (!isRunning())
        start(IdlePriority);
}

void ControlPanelThread::LookUp() {
    Wake(m_lookUp, true);
}

void ControlPanelThread::Wake(std::atomic<bool>& flag, bool value) {
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        flag = value;
    }
    m_wake.notify_one();
}

void ControlPanelThread::ThreadAction() {
    while (m_running) {
        if (m_rearm.exchange(false))
            m_watch.Rearm();
        if (m_lookUp.exchange(false)) {
            const ProcessIdentity process = GetControlPanelPid();
            m_watch.SetProcess(process);
            emit LookedUp(process.id);
        } else if (m_watch.HasProcess()) {
            m_watch.Pass();
            std::this_thread::yield();
        } else {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_wake.wait(lock, [this] { return !m_running || m_lookUp; });
        }
    }
}

ProcessIdentity ControlPanelThread::GetControlPanelPid() const {
    return m_processes.Find(HostName, HostCommandLine);
}
