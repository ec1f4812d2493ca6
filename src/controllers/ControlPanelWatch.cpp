#include "controllers/ControlPanelWatch.h"

#include <algorithm>
#include <array>
#include <glog/logging.h>
#include <utility>

namespace {

constexpr char FolderWindow[] = "CabinetWClass";
constexpr std::array ShellClasses{"SysListView32", "WorkerW", "Shell_TrayWnd", "Shell_SecondaryTrayWnd",
                                  "Progman"};

} // namespace

void ControlPanelWatch::SetProcess(const ProcessIdentity& process) {
    m_process = process;
    m_logged.clear();
}

void ControlPanelWatch::Pass() {
    if (!HasProcess())
        return;
    std::optional<std::vector<WId>> list;
    bool isListed = false; // the desktop is listed once, and only when there is something to look for
    const auto isReal = [&](WId window) {
        if (!std::exchange(isListed, true))
            list = GetCurrentWindowList();
        return list && std::find(list->begin(), list->end(), window) != list->end();
    };
    // The whole walk first: a window that goes meanwhile would end it early.
    std::vector<WId> own;
    for (WId window = m_desktop.NextWindow(FolderWindow, 0); window != 0;
         window = m_desktop.NextWindow(FolderWindow, window))
        if (m_desktop.ProcessOf(window) == m_process.id)
            own.push_back(window);
    for (const WId window : own)
        if (isReal(window))
            return Remember(window);

    if (m_processes.Identify(m_process.id) != m_process) {
        LogOnce("process has ended by itself: pid " + std::to_string(m_process.id));
        return Forget();
    }
    if (m_window == 0)
        return;
    if (!m_destroy)
        return LogOnce("m_destroy is:0");
    if (isReal(m_window) || !list)
        return;
    LogOnce("m_destroy is:1");
    Terminate();
}

std::optional<std::vector<WId>> ControlPanelWatch::GetCurrentWindowList() {
    std::optional<std::vector<WId>> windows = m_desktop.TopLevelWindows();
    if (!windows) {
        LogOnce("Enum Window Error, Error Code:{}" + std::to_string(m_desktop.LastError()));
        return std::nullopt;
    }
    windows->erase(std::remove_if(windows->begin(), windows->end(),
                                  [this](WId window) { return !IsRealWindow(window); }),
                   windows->end());
    return windows;
}

bool ControlPanelWatch::IsRealWindow(WId window) {
    if (!m_desktop.IsOwnRoot(window))
        return false;
    const SystemDesktop::Style style = m_desktop.GetWindowStyle(window);
    const SystemDesktop::ExStyle exStyle = m_desktop.GetWindowExStyle(window);
    if (style.isChild || style.isDisabled || exStyle.takesNoActivation || exStyle.isToolWindow)
        return false;
    if (m_desktop.IsDesktopOrShell(window))
        return false;
    if (std::find(ShellClasses.begin(), ShellClasses.end(), m_desktop.ClassOf(window)) != ShellClasses.end())
        return false;
    const std::optional<QRect> place = m_desktop.GetWindowGeometry(window);
    if (!place)
        LogOnce("Get Window Frame Rect Info Call Error, Error Code: {}" +
                std::to_string(m_desktop.LastError()));
    if (place.value_or(QRect()).size().isNull())
        return false;
    return !m_desktop.IsCloaked(window) && m_desktop.IsVisible(window);
}

void ControlPanelWatch::Remember(WId window) {
    if (m_window == window && m_destroy)
        return;
    m_window = window;
    m_destroy = true;
    m_logged.clear();
    LogOnce("sees the window of pid " + std::to_string(m_process.id));
}

void ControlPanelWatch::Terminate() {
    const auto [ending, error] = m_processes.Terminate(m_process);
    switch (ending) {
    case SystemProcesses::Ending::Done:
        LogOnce("DestroyThread pid" + std::to_string(m_process.id));
        return Forget();
    case SystemProcesses::Ending::NotTerminated:
        return LogOnce("TerminateProcess Failed" + std::to_string(error));
    case SystemProcesses::Ending::NotOpened:
        return LogOnce("Open Process Failed" + std::to_string(error));
    case SystemProcesses::Ending::NoLongerThere:
        return Forget();
    }
}

void ControlPanelWatch::Forget() {
    m_process = {};
    m_window = 0;
    m_destroy = false;
}

// The passes follow each other without a pause: a line of each would fill the log in seconds.
void ControlPanelWatch::LogOnce(const std::string& line) {
    if (m_logged.insert(line).second)
        LOG(INFO) << "ControlPanelWatch::Pass " << line;
}
