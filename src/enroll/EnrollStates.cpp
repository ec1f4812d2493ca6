#include "enroll/EnrollStates.h"

#include "enroll/EnrollPage.h"
#include "enroll/EnrollStateMachine.h"

namespace {

/// Every state forgets a drive that has gone.
class EnrollState : public EnrollStateBase {
public:
    bool UsbRemoved(EnrollStateMachine& machine, const QString& drive) const override {
        machine.Page().InvokeUsbRemoved(drive);
        return true;
    }

protected:
    ~EnrollState() = default;
};

class NoEnrollYetState final : public EnrollState {
public:
    bool BindRequested(EnrollStateMachine& machine) const override {
        const bool sent = machine.Page().InvokeBinding();
        if (sent)
            machine.SetState(EnrollStates::Enrolling());
        return sent;
    }
    bool Enter(EnrollStateMachine& machine) const override {
        machine.Page().InvokeNoBindUI();
        return true;
    }
    bool AutoEnrollRequest(EnrollStateMachine& machine, const std::string& body, bool) const override {
        return machine.Page().InvokeAutoEnroll(body);
    }
    bool UsbArrived(EnrollStateMachine& machine, const QString& drive) const override {
        machine.Page().InvokeUsbArrived(drive, true);
        return true;
    }
    bool PageHidden(EnrollStateMachine& machine) const override {
        machine.Page().InvokeWindowHided();
        return true;
    }
};

class EnrollingState final : public EnrollState {
public:
    // A failure does not enter: that would take the typed tags away.
    bool BindResult(EnrollStateMachine& machine, const std::string& body, bool) const override {
        const bool enrolled = machine.Page().InvokeEnrollComplete(body);
        machine.SetState(enrolled ? EnrollStates::Connected() : EnrollStates::NoEnrollYet());
        if (enrolled)
            machine.Enter();
        return enrolled;
    }
};

class UnEnrollingState final : public EnrollState {
public:
    bool UnbindResult(EnrollStateMachine& machine, const std::string& body, bool) const override {
        const bool unenrolled = machine.Page().InvokeUnEnrollComplete(body, true);
        machine.SetState(unenrolled ? EnrollStates::NoEnrollYet() : EnrollStates::Connected());
        if (unenrolled)
            machine.Enter();
        return unenrolled;
    }
};

class ConnectedState final : public EnrollState {
public:
    bool UnbindRequested(EnrollStateMachine& machine) const override {
        machine.Page().InvokeConnected();
        return true;
    }
    bool Enter(EnrollStateMachine& machine) const override {
        machine.Page().InvokeBindingUI();
        return true;
    }
    // The page draws itself. A notice may tell of a failure.
    bool UnenrolledNotice(EnrollStateMachine& machine, const std::string& body, bool) const override {
        const bool unenrolled = machine.Page().InvokeUnEnrollComplete(body, false);
        machine.SetState(unenrolled ? EnrollStates::NoEnrollYet() : EnrollStates::Connected());
        return unenrolled;
    }
    bool DeviceNameChanged(EnrollStateMachine& machine, const std::string& body) const override {
        machine.Page().InvokeDeviceNameChanged(body);
        return true;
    }
    bool DeviceTagsChanged(EnrollStateMachine& machine, const std::string& body) const override {
        machine.Page().InvokeDeviceTagsChanged(body);
        return true;
    }
    bool AdminAccountChanged(EnrollStateMachine& machine, const std::string& body) const override {
        machine.Page().InvokeAdminAccountChanged(body);
        return true;
    }
    bool UsbArrived(EnrollStateMachine& machine, const QString& drive) const override {
        machine.Page().InvokeUsbArrived(drive, false);
        return true;
    }
};

class DisConnectedState final : public EnrollState {
public:
    bool ReconnectRequested(EnrollStateMachine& machine) const override {
        machine.Page().InvokeDisConnected();
        return true;
    }
    bool Enter(EnrollStateMachine& machine) const override {
        machine.Page().InvokeDisConnectedUI();
        return true;
    }
    bool UsbArrived(EnrollStateMachine& machine, const QString& drive) const override {
        machine.Page().InvokeUsbArrived(drive, false);
        return true;
    }
};

class ConnectingState final : public EnrollState {
public:
    bool Enter(EnrollStateMachine& machine) const override {
        machine.Page().InvokeDisConnectedUI();
        return true;
    }
};

} // namespace

const EnrollStateBase& EnrollStates::NoEnrollYet() {
    static const NoEnrollYetState state;
    return state;
}
const EnrollStateBase& EnrollStates::Enrolling() {
    static const EnrollingState state;
    return state;
}
const EnrollStateBase& EnrollStates::UnEnrolling() {
    static const UnEnrollingState state;
    return state;
}
const EnrollStateBase& EnrollStates::Connected() {
    static const ConnectedState state;
    return state;
}
const EnrollStateBase& EnrollStates::DisConnected() {
    static const DisConnectedState state;
    return state;
}
const EnrollStateBase& EnrollStates::Connecting() {
    static const ConnectingState state;
    return state;
}
