#pragma once

#include "controllers/ControlPanelThread.h"
#include "lock/USettingsLockMaskModal.h"
#include "platform/link/ControllerBase.h"

#include <QTimer>
#include <memory>

/// Locks the system's settings when the service says so: shows the mask that asks for the password, and has
/// the Control Panel's process ended when its window goes. GUI thread.
class SettingsLockController : public ControllerBase {
    Q_OBJECT

public:
    explicit SettingsLockController(const Clock& clock = Clock::System(),
                                    const SystemWindows& windows = SystemWindows::Native(),
                                    const SystemInput& input = SystemInput::Native(),
                                    const SystemDesktop& desktop = SystemDesktop::Native(),
                                    const SystemProcesses& processes = SystemProcesses::Native());

private:
    void ProcessMessage(PipeKey key);
    void StartWatching();
    void OnLookedUp(quint32 pid);
    void OnLookUpTimer();

    std::unique_ptr<USettingsLockMaskModal> m_mask;
    ControlPanelThread m_watcher;
    QTimer m_lookUpTimer{this};
    int m_lookUps = 0; // since the service asked for it
};
