#pragma once

#include "platform/system/SystemDesktop.h"
#include "platform/system/SystemProcesses.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

/// Ends the Control Panel's process once its window, having been among the desktop's real windows, is no
/// longer one of them. One thread at a time.
class ControlPanelWatch {
public:
    ControlPanelWatch(const SystemDesktop& desktop, const SystemProcesses& processes)
        : m_desktop(desktop), m_processes(processes) {}

    /// Watching begins anew: the window has to be seen again.
    void Rearm() { m_destroy = false; }

    /// The process to watch from now on; one without a number is none.
    void SetProcess(const ProcessIdentity& process);
    bool HasProcess() const { return m_process.id != 0; }

    /// One look at the desktop.
    void Pass();

private:
    /// The windows that a user can see and use; nothing when they cannot be listed.
    std::optional<std::vector<WId>> GetCurrentWindowList();
    bool IsRealWindow(WId window);
    void Remember(WId window);
    void Terminate();
    void Forget();
    void LogOnce(const std::string& line);

    const SystemDesktop& m_desktop;
    const SystemProcesses& m_processes;
    ProcessIdentity m_process;
    WId m_window = 0;               // the Control Panel's, as last seen
    bool m_destroy = false;         // it has been seen: the process is to end with it
    std::set<std::string> m_logged; // since anything has changed
};
