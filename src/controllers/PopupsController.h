#pragma once

#include "controllers/PopupBlocker.h"
#include "entity/AppEntities.h"
#include "platform/link/ControllerBase.h"

/// Blocks the pop-ups of other programs by the service's rules, and carries messages that other threads post
/// as PipeSendEvent to the pipe. The rules are the process's, not the controller's. GUI thread.
class PopupsController : public ControllerBase {
    Q_OBJECT

public:
    explicit PopupsController(const SystemDesktop& desktop = SystemDesktop::Native(),
                              const SystemProcesses& processes = SystemProcesses::Native(),
                              const SystemPrograms& programs = SystemPrograms::Native(),
                              const Clock& clock = Clock::System());

    void OnPipeDataReceived(PipeKey key, const std::string& body) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Apply(SyncPopupsParams&& policy);
    void SwitchOff();

    const SystemDesktop& m_desktop;
    std::shared_ptr<PopupBlocker> m_blocker;
    SystemDesktop::Watch m_hook = nullptr; // it outlives the controller, as the rules do
};
