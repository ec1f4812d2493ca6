#pragma once

#include "enroll/EnrollStates.h"
#include "platform/application/IotStatus.h"
#include "platform/link/PipeKey.h"

#include <QObject>

class EnrollPage;
class UsbDetector;

/// Decides which events count for the enrolment: the user's, the service's and the drives' go to the current
/// state, which asks the page to act and may change the state. What is drawn and sent is the page's. GUI
/// thread.
class EnrollStateMachine : public QObject {
    Q_OBJECT

public:
    /// Begins as enrolled or not, as the context says, and enters nothing.
    EnrollStateMachine(EnrollPage& page, UsbDetector& detector, QObject* parent = nullptr);

    EnrollPage& Page() const { return m_page; }
    const EnrollStateBase& State() const { return *m_state; }
    bool IsIn(const EnrollStateBase& state) const { return m_state == &state; }

    /// Enters nothing.
    void SetState(const EnrollStateBase& state) { m_state = &state; }

    void Enter() { m_state->Enter(*this); }
    void BindPressed() { m_state->BindRequested(*this); }
    void ReconnectPressed() { m_state->ReconnectRequested(*this); }
    void UnbindPressed() { m_state->UnbindRequested(*this); }
    void PageHidden() { m_state->PageHidden(*this); }

    /// Goes to the state that belongs to the status of the link, and enters it; other numbers do nothing.
    void FollowStatus(IotStatus status);

    /// Handles the keys 2 to 9.
    void OnPipeDataReceived(PipeKey key, const std::string& body);

private:
    EnrollPage& m_page;
    const EnrollStateBase* m_state;
};
