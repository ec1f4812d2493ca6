#pragma once

#include <QString>
#include <string>

class EnrollStateMachine;

/// What counts in one situation of the enrolment: each operation is an event, told with the machine that it
/// happened to. The states have no data; there is one object of each, and they are told apart by identity.
class EnrollStateBase {
public:
    /// The button was pressed: to bind, to connect, to unbind.
    virtual bool BindRequested(EnrollStateMachine& machine) const;
    virtual bool ReconnectRequested(EnrollStateMachine& machine) const;
    virtual bool UnbindRequested(EnrollStateMachine& machine) const;

    /// Shows the state.
    virtual bool Enter(EnrollStateMachine& machine) const;

    /// Messages of the service.
    virtual bool BindResult(EnrollStateMachine& machine, const std::string& body, bool requested) const;
    virtual bool UnbindResult(EnrollStateMachine& machine, const std::string& body, bool requested) const;
    virtual bool AutoEnrollRequest(EnrollStateMachine& machine, const std::string& body, bool flag) const;
    virtual bool UnenrolledNotice(EnrollStateMachine& machine, const std::string& body, bool requested) const;
    virtual bool DeviceNameChanged(EnrollStateMachine& machine, const std::string& body) const;
    virtual bool DeviceTagsChanged(EnrollStateMachine& machine, const std::string& body) const;
    virtual bool AdminAccountChanged(EnrollStateMachine& machine, const std::string& body) const;

    virtual bool UsbArrived(EnrollStateMachine& machine, const QString& drive) const;
    virtual bool UsbRemoved(EnrollStateMachine& machine, const QString& drive) const;

    virtual bool PageHidden(EnrollStateMachine& machine) const;

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
