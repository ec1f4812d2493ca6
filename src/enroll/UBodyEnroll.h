#pragma once

#include "enroll/EnrollPage.h"
#include "enroll/EnrollView.h"
#include "entity/EnrollEntities.h"
#include "platform/system/SystemDrives.h"

class EnrollDialogs;
class EnrollStateMachine;
class RyxWindow;
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
    /// The state is that of `button` now.
    void ShowButton(ButtonState button);
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

    void OnEnrollJsonFound(const EnrollmentFile& file, bool mayEnroll);
    void FillFromUsbEnrollmentFile(const UsbEnrollmentFile& file);

    RyxWindow& Window() const;

    Wait m_wait = Wait::ForNothing;
    DeviceBindingParam m_request;
    bool m_firstShowDone = false;

    EnrollDialogs* m_dialogs;
    UsbDetector* m_detector;
    UsbEnrollment* m_usb;
    EnrollStateMachine* m_machine;
};
