#pragma once

#include "enroll/EnrollPage.h"
#include "enroll/EnrollView.h"
#include "entity/EnrollEntities.h"
#include "platform/system/SystemDrives.h"

class EnrollStateMachine;
class RyxWindow;
class UBodyEnrollModal;
class UBodyEnrollPermissionsModal;
class UBodyEnrollTip;
class UBodyEnrollUnModal;
class UBodyEnrollUsbAlert;
class UsbDetector;
class UsbEnrollment;
struct EnrollmentFile;

/// The enrolment of this device: checks what was entered, sends the requests to enrol and unenrol, and shows
/// what comes of them. What counts when is decided by its state machine. GUI thread.
class UBodyEnroll : public EnrollView, private EnrollPage {
    Q_OBJECT

public:
    explicit UBodyEnroll(QWidget* parent, const SystemDrives& drives = SystemDrives::Native());

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void OnUnBindingDevice();

private:
    enum class Wait { ForNothing, ForBinding, ForUnbinding };

    bool InvokeBinding() override;
    bool InvokeEnrollComplete(const std::string& body) override;
    bool InvokeUnEnrollComplete(const std::string& body, bool requested) override;
    bool InvokeAutoEnroll(const std::string& body) override;
    void InvokeBindingUI() override;
    void InvokeNoBindUI() override;
    void InvokeDisConnectedUI() override;
    void InvokeConnected() override;
    void InvokeDisConnected() override;
    void InvokeDeviceNameChanged(const std::string& body) override;
    void InvokeDeviceTagsChanged(const std::string& body) override;
    void InvokeAdminAccountChanged(const std::string& body) override;
    void InvokeUsbArrived(const QString& drive, bool mayEnroll) override;
    void InvokeUsbRemoved(const QString& drive) override;
    void InvokeWindowHided() override;

    void InitConnect();
    /// Enters the state, and looks at the drives, when the page is needed first.
    void BeginOnce();
    void OnClickedBindButton();
    void Press(ButtonState state);
    /// A wait whose result cannot come ends as a failure.
    void FailWait();

    bool CheckIsAgreePrivacyPolicy();
    void CheckDeviceBindingResult(const std::string& code, bool fromBind);

    void BeginWaiting(Wait wait);
    void EndWaiting();
    void TakeOver(const DeviceBindingParam& enrolment);
    void ForgetEnrolment();
    void SetEnrollUI();
    void GetConfigTags();

    /// The dialog for when the service cannot be reached; it offers another try of `retry`.
    void ShowFailure(ButtonState retry, const char* title, const char* content, const char* cancel);
    /// The state has changed: what is about another one than that of `button` goes.
    void HideDialogs(ButtonState button);

    void OnEnrollJsonFound(const EnrollmentFile& file, bool mayEnroll);
    void FillFromUsbEnrollmentFile(const UsbEnrollmentFile& file);

    RyxWindow& Window() const;
    bool IsInView() const { return isVisibleTo(window()); }

    UBodyEnrollModal* m_modal = nullptr; // these are made when they are first needed
    UBodyEnrollUnModal* m_unModal = nullptr;
    UBodyEnrollPermissionsModal* m_permissions = nullptr;
    UBodyEnrollTip* m_tip = nullptr;
    UBodyEnrollUsbAlert* m_usbAlert = nullptr;

    Wait m_wait = Wait::ForNothing;
    ButtonState m_retry = ButtonState::Bind; // what m_modal offers
    DeviceBindingParam m_request;
    bool m_firstShowDone = false;

    UsbDetector* m_detector;
    UsbEnrollment* m_usb;
    EnrollStateMachine* m_machine;
};
