#pragma once

#include <QString>
#include <string>

/// What the state machine asks of the enrolment page. Bodies are those of the messages. GUI thread.
class EnrollPage {
public:
    /// Checks the form and sends the request to bind; false when nothing was sent.
    virtual bool InvokeBinding() = 0;
    /// The request to bind was answered; whether the device is enrolled now.
    virtual bool InvokeEnrollComplete(const std::string& body) = 0;
    /// The device was unenrolled, by an answer or, if it was not `requested`, by a notice; false if it was
    /// not.
    virtual bool InvokeUnEnrollComplete(const std::string& body, bool requested) = 0;
    /// The service has enrolled the device by itself; whether that went well.
    virtual bool InvokeAutoEnroll(const std::string& body) = 0;

    /// The looks: enrolled and connected, not enrolled, enrolled and not connected.
    virtual void InvokeBindingUI() = 0;
    virtual void InvokeNoBindUI() = 0;
    virtual void InvokeDisConnectedUI() = 0;

    /// The user wants to unenrol the device that is connected.
    virtual void InvokeConnected() = 0;
    /// The user wants to connect the device that is not connected.
    virtual void InvokeDisConnected() = 0;

    virtual void InvokeDeviceNameChanged(const std::string& body) = 0;
    virtual void InvokeDeviceTagsChanged(const std::string& body) = 0;
    virtual void InvokeAdminAccountChanged(const std::string& body) = 0;

    /// A drive was put in; whether its file may enrol the device.
    virtual void InvokeUsbArrived(const QString& drive, bool mayEnroll) = 0;
    virtual void InvokeUsbRemoved(const QString& drive) = 0;

    /// The page with the form has gone from view.
    virtual void InvokeWindowHided() = 0;

protected:
    ~EnrollPage() = default;
};
