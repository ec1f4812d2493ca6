#pragma once

#include <QString>
#include <string>

class EnrollStateMachine;

/// What counts in one situation of the enrolment: each operation is an event, told with the machine that it
/// happened to. The base does nothing. The states have no data; there is one object of each, and they are
/// told apart by identity.
class EnrollStateBase {
public:
    /// The button was pressed: to bind, to connect, to unbind.
    virtual bool BindRequested(EnrollStateMachine&) const { return false; }
    virtual bool ReconnectRequested(EnrollStateMachine&) const { return false; }
    virtual bool UnbindRequested(EnrollStateMachine&) const { return false; }

    /// Shows the state.
    virtual bool Enter(EnrollStateMachine&) const { return false; }

    /// Messages of the service: the body, and whether the user has asked for what it tells.
    virtual bool BindResult(EnrollStateMachine&, const std::string&, bool) const { return false; }
    virtual bool UnbindResult(EnrollStateMachine&, const std::string&, bool) const { return false; }
    virtual bool AutoEnrollRequest(EnrollStateMachine&, const std::string&, bool) const { return false; }
    virtual bool UnenrolledNotice(EnrollStateMachine&, const std::string&, bool) const { return false; }
    virtual bool DeviceNameChanged(EnrollStateMachine&, const std::string&) const { return false; }
    virtual bool DeviceTagsChanged(EnrollStateMachine&, const std::string&) const { return false; }
    virtual bool AdminAccountChanged(EnrollStateMachine&, const std::string&) const { return false; }

    virtual bool UsbArrived(EnrollStateMachine&, const QString&) const { return false; }
    virtual bool UsbRemoved(EnrollStateMachine&, const QString&) const { return false; }

    virtual bool PageHidden(EnrollStateMachine&) const { return false; }

protected:
    ~EnrollStateBase() = default;
};

namespace EnrollStates {

/// The form waits for the user.
const EnrollStateBase& NoEnrollYet();
/// The request to bind waits for its result.
const EnrollStateBase& Enrolling();
/// The request to unbind waits for its result.
const EnrollStateBase& UnEnrolling();
/// Enrolled, and linked to the organisation.
const EnrollStateBase& Connected();
/// Enrolled, without a link to the organisation.
const EnrollStateBase& DisConnected();
const EnrollStateBase& Connecting();

} // namespace EnrollStates
