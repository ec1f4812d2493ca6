#include "controllers/PopupsController.h"

#include "platform/link/PipeSendEvent.h"

#include <QCoreApplication>
#include <utility>

namespace {

PopupRules& Rules() {
    static auto& rules = *new PopupRules; // threads may outlive what is static
    return rules;
}

} // namespace

PopupsController::PopupsController(const SystemDesktop& desktop, const SystemProcesses& processes,
                                   const SystemPrograms& programs, const Clock& clock)
    : m_desktop(desktop),
      m_blocker(std::make_shared<PopupBlocker>(Rules(), desktop, processes, programs, clock)) {
    QCoreApplication::instance()->installEventFilter(this);
}

void PopupsController::OnPipeDataReceived(PipeKey key, const std::string& body) {
    if (key == PipeKey::DeviceUnenrolled)
        return SwitchOff();
    if (key != PipeKey::PopupPolicy)
        return;
    SyncPopupsParams policy;
    policy.ReadFromString(body);
    Apply(std::move(policy));
}

void PopupsController::Apply(SyncPopupsParams&& policy) {
    if (!policy.popStatus)
        return SwitchOff();
    if (!policy.hasOne)
        Rules().Replace(std::move(policy.popupsDetails));
    else if (!policy.popupsDetails.empty())
        Rules().Change(policy.popupsDetails.front(), policy.enable);
    if (!m_hook)
        m_hook = m_desktop.WatchShown([blocker = m_blocker](WId window) { blocker->Look(window); });
}

void PopupsController::SwitchOff() {
    Rules().Clear();
    if (!m_hook)
        return;
    m_desktop.EndWatch(m_hook);
    m_hook = nullptr;
}

bool PopupsController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == QCoreApplication::instance() && event->type() == PipeSendEvent::eventType()) {
        const auto* message = static_cast<PipeSendEvent*>(event);
        Send(message->Key(), message->Data());
    }
    return ControllerBase::eventFilter(watched, event);
}
