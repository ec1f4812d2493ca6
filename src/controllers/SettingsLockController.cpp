#include "controllers/SettingsLockController.h"

#include "platform/link/PipeEventWatcher.h"

#include <glog/logging.h>

namespace {

constexpr int MostLookUps = 5;
constexpr int LookUpPauseMs = 200;

void LogPid(quint32 pid) {
    LOG(INFO) << "SettingsLockController::StartWatching m_pid,GetControlPanelPid is:" << pid;
}

} // namespace

SettingsLockController::SettingsLockController(const Clock& clock, const SystemWindows& windows,
                                               const SystemInput& input, const SystemDesktop& desktop,
                                               const SystemProcesses& processes)
    : m_mask(std::make_unique<USettingsLockMaskModal>(*this, clock, windows, input)),
      m_watcher(desktop, processes) {
    new PipeEventWatcher(this, [this](PipeKey key, const std::string&) { ProcessMessage(key); });
    m_lookUpTimer.setObjectName(QStringLiteral("lookUpTimer"));
    m_lookUpTimer.setSingleShot(true);
    m_lookUpTimer.setInterval(LookUpPauseMs);
    connect(&m_lookUpTimer, &QTimer::timeout, this, &SettingsLockController::OnLookUpTimer);
    connect(&m_watcher, &ControlPanelThread::LookedUp, this, &SettingsLockController::OnLookedUp);
}

void SettingsLockController::ProcessMessage(PipeKey key) {
    switch (key) {
    case PipeKey::SettingsLockShow:
        m_mask->BringForward();
        break;
    case PipeKey::SettingsLockHide:
        m_mask->hide();
        break;
    case PipeKey::ControllExit:
        StartWatching();
        break;
    default:
        break;
    }
}

void SettingsLockController::StartWatching() {
    m_lookUpTimer.stop();
    m_lookUps = 0;
    m_watcher.Rearm();
    m_watcher.LookUp();
}

void SettingsLockController::OnLookedUp(quint32 pid) {
    ++m_lookUps;
    if (pid == 0)
        m_lookUpTimer.start();
    else
        LogPid(pid);
}

void SettingsLockController::OnLookUpTimer() {
    if (m_lookUps < MostLookUps)
        m_watcher.LookUp();
    else
        LogPid(0);
}
