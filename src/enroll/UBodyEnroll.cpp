#include "enroll/UBodyEnroll.h"

#include "enroll/EnrollAgreement.h"
#include "enroll/EnrollDialogs.h"
#include "enroll/EnrollForm.h"
#include "enroll/EnrollNameField.h"
#include "enroll/EnrollStateMachine.h"
#include "enroll/UBodyEnrollTags.h"
#include "enroll/UEnrollToast.h"
#include "enroll/UsbEnrollment.h"
#include "platform/application/RyxWindow.h"
#include "platform/application/UsbDetector.h"
#include "platform/context/AppContextData.h"
#include "platform/link/ControllerBase.h"
#include "platform/link/PipeClientService.h"
#include "platform/security/LogText.h"
#include "widgets/GestureScrollArea.h"

#include <QCheckBox>
#include <QShowEvent>
#include <glog/logging.h>

namespace {

constexpr char NetError[] = "net_error"; // the service was not reached

/// The result in `body`; one that cannot be read says nothing. Left to whoever catches exceptions, the wait
/// for it would never end.
template <class Result>
Result ReadResult(const std::string& body) {
    Result result;
    try {
        result.ReadFromString(body);
    } catch (const std::exception& error) {
        LOG(WARNING) << "UBodyEnroll::ReadResult cannot read a result: "
                     << LogText(std::string(error.what()));
        result = {};
    }
    return result;
}

} // namespace

UBodyEnroll::UBodyEnroll(QWidget* parent, const SystemDrives& drives)
    : EnrollView(parent),
      m_dialogs(new EnrollDialogs(this)),
      m_detector(new UsbDetector(drives, this)),
      m_usb(new UsbEnrollment(this)),
      m_machine(new EnrollStateMachine(*this, *m_detector, this)) {
    InitConnect();
}

void UBodyEnroll::InitConnect() {
    connect(this, &EnrollView::ButtonClicked, this, &UBodyEnroll::OnClickedBindButton);
    connect(PipeClientService::Instance(), &PipeClientService::ConnectChanged, this, [this](bool connected) {
        if (!connected)
            FailWait();
    });
    connect(m_dialogs, &EnrollDialogs::RetryWanted, this, &UBodyEnroll::Press);
    connect(m_dialogs, &EnrollDialogs::UnenrolmentRequested, this, &UBodyEnroll::OnUnBindingDevice);
    connect(m_dialogs, &EnrollDialogs::UnenrolmentNotSent, this, &UBodyEnroll::FailWait);
    connect(m_usb, &UsbEnrollment::Found, this, &UBodyEnroll::OnEnrollJsonFound);
    installEventFilter(this);
}

RyxWindow& UBodyEnroll::Window() const {
    RyxWindow* window = RyxWindow::Of(this);
    CHECK(window) << "UBodyEnroll stands in no main window";
    return *window;
}

void UBodyEnroll::showEvent(QShowEvent* event) {
    EnrollView::showEvent(event);
    if (!event->spontaneous())
        BeginOnce();
}

void UBodyEnroll::BeginOnce() {
    if (std::exchange(m_firstShowDone, true))
        return;
    const bool enrolled = AppContextData::Instance()->Enrolled();
    if (enrolled)
        m_machine->SetState(EnrollStates::DisConnected());
    m_machine->Enter();
    // What the service has said before anybody looked still holds.
    if (const IotStatus status = Window().KnownLinkStatus(); enrolled && status != IotStatus::NotEnrolled)
        m_machine->FollowStatus(status);
    if (m_usb->Path().isEmpty())
        m_usb->FindEnrollJson(m_detector->Drives(), false);
}

void UBodyEnroll::changeEvent(QEvent* event) {
    EnrollView::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_firstShowDone)
        m_machine->Enter();
}

bool UBodyEnroll::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this && event->type() == QEvent::Hide)
        m_machine->PageHidden();
    return EnrollView::eventFilter(watched, event);
}

void UBodyEnroll::OnClickedBindButton() {
    if (m_wait == Wait::ForNothing)
        Press(Button());
}

void UBodyEnroll::Press(ButtonState state) {
    switch (state) {
    case ButtonState::Bind:
        m_machine->BindPressed();
        break;
    case ButtonState::Connect:
        m_machine->ReconnectPressed();
        break;
    case ButtonState::Unbind:
        m_machine->UnbindPressed();
        break;
    }
}

bool UBodyEnroll::CheckIsAgreePrivacyPolicy() {
    if (Form().Agreement().IsAgreed())
        return true;
    ScrollToEnd();
    m_dialogs->ShowAgreementTip();
    return false;
}

bool UBodyEnroll::InvokeBinding() {
    SetErrorAreaVisible(false);
    if (EnrollField* wrong = Form().CheckInputIsRight()) {
        wrong->FocusAnswer();
        GestureScrollArea::Reveal(wrong);
        return false;
    }
    if (!CheckIsAgreePrivacyPolicy())
        return false;
    m_request = {};
    m_request.code = Form().Code().Text().toStdString();
    m_request.email = Form().Account().Text().toStdString();
    m_request.binding = true;
    m_request.deviceName = Form().Name().Name().toStdString();
    m_request.tags = Form().Tags().Tags();
    BeginWaiting(Wait::ForBinding);
    Window().BeginBinding(RyxWindow::BindAction::Bind);
    ControllerBase* controller = Window().MainController();
    if (controller && controller->Send(PipeKey::Binding, m_request.WriteToString()))
        return true;
    m_request = {};
    EndWaiting();
    CheckDeviceBindingResult(NetError, true);
    return false;
}

bool UBodyEnroll::InvokeEnrollComplete(const std::string& body) {
    const auto result = ReadResult<DeviceBindingResult>(body);
    EndWaiting();
    if (!result.result) {
        if (result.code != NetError) // one that was lost with the link may have gone well
            m_request = {};
        CheckDeviceBindingResult(result.code, true);
        return false;
    }
    TakeOver(m_request);
    AppContextData::Instance()->SetPermissionList(result.permissionList);
    if (!result.permissionList.empty())
        m_dialogs->ShowPermissions();
    return true;
}

bool UBodyEnroll::InvokeUnEnrollComplete(const std::string& body, bool requested) {
    const auto result = ReadResult<UnenrolmentResult>(body);
    // A notice that names no failure is an unenrolment.
    if (!result.result.value_or(!requested && result.code.empty())) {
        CheckDeviceBindingResult(result.code, false);
        EndWaiting();
        return false;
    }
    ForgetEnrolment();
    InvokeNoBindUI(); // nobody enters after a notice
    return true;
}

void UBodyEnroll::ForgetEnrolment() {
    m_request = {};
    AppContextData::Instance()->ForgetEnrolment();
    Form().Name().SetText({});
    Form().Agreement().Box().setChecked(false);
}

bool UBodyEnroll::InvokeAutoEnroll(const std::string& body) {
    AutoEnrollParams params;
    params.ReadFromString(body);
    if (params.code.empty() || params.adminAccount.empty()) {
        CheckDeviceBindingResult(params.code, true);
        return false;
    }
    DeviceBindingParam enrolment;
    enrolment.code = params.code;
    enrolment.email = params.adminAccount;
    enrolment.deviceName = params.name;
    if (!params.tag.empty())
        enrolment.tags = {params.tag};
    TakeOver(enrolment);
    return true;
}

void UBodyEnroll::CheckDeviceBindingResult(const std::string& code, bool fromBind) {
    QString told = tr("Unable to bind.");
    if (fromBind) {
        SetErrorAreaVisible(true);
        if (code == "r_802001" || code == "r_802002" || code == "r_802003") {
            Form().Code().MarkError(true);
            Form().Account().MarkError(true);
            told = tr("bind_result_no_match_error_tip");
        }
    }
    if (code == "error")
        told = tr("error .");
    else if (code == NetError)
        m_dialogs->ShowFailure(fromBind ? ButtonState::Bind : ButtonState::Unbind,
                               QT_TR_NOOP("dialog_bind_fail_text"),
                               QT_TR_NOOP("dialog_disconnect_content_text"),
                               fromBind ? QT_TR_NOOP("view_register_windows_title_bind_state")
                                        : QT_TR_NOOP("view_register_windows_title_unbind_state"));
    else if (code == "170002" || code == "170004")
        told = tr("bind_result_no_net_error_tip");
    // The later word counts, and that of an unenrolment is the last.
    UEnrollToast::Of(this)->Tell(NoticeKind::Error, fromBind ? told : tr("Unable to UnEnroll."));
}

// What the service has sent meanwhile says nothing of the values: those of the request count.
void UBodyEnroll::TakeOver(const DeviceBindingParam& enrolment) {
    m_firstShowDone = true;
    AppContextData& context = *AppContextData::Instance();
    context.SetSchoolCode(enrolment.code);
    context.SetAdminAccount(enrolment.email);
    context.SetDeviceName(enrolment.deviceName);
    context.SetDeviceTags(enrolment.tags);
    context.SetEnrolled(true);
    Form().Name().SetText(QString::fromStdString(enrolment.deviceName));
}

void UBodyEnroll::BeginWaiting(Wait wait) {
    m_wait = wait;
    SetLoading(true);
}

void UBodyEnroll::EndWaiting() {
    m_wait = Wait::ForNothing;
    SetLoading(false);
    Window().EndBinding();
}

void UBodyEnroll::FailWait() {
    if (m_wait == Wait::ForNothing)
        return;
    DeviceBindingResult failure;
    failure.code = NetError;
    m_machine->OnPipeDataReceived(PipeKey::Binding, failure.WriteToString());
}

void UBodyEnroll::OnUnBindingDevice() {
    m_machine->SetState(EnrollStates::UnEnrolling());
    BeginWaiting(Wait::ForUnbinding);
}

void UBodyEnroll::SetEnrollUI() {
    // The status came before the result, or in place of one that was lost with the link.
    if (m_request.binding && (m_wait == Wait::ForBinding || AppContextData::Instance()->SchoolCode().empty()))
        TakeOver(m_request);
    EndWaiting();
    const AppContextData& context = *AppContextData::Instance();
    Form().Code().SetText(QString::fromStdString(context.SchoolCode()));
    Form().Account().SetText(QString::fromStdString(context.AdminAccount()));
    Form().Name().SetText(QString::fromStdString(context.DeviceName()));
    GetConfigTags();
    Form().ClearErrors();
    SetErrorAreaVisible(false);
    SetReadOnly(true);
}

void UBodyEnroll::GetConfigTags() {
    Form().SetTags(AppContextData::Instance()->DeviceTags());
}

void UBodyEnroll::InvokeBindingUI() {
    SetEnrollUI();
    ShowButton(ButtonState::Unbind);
}

void UBodyEnroll::InvokeDisConnectedUI() {
    SetEnrollUI();
    ShowButton(ButtonState::Connect);
}

void UBodyEnroll::InvokeNoBindUI() {
    // The status may be the only one to say that the enrolment is over, or the first.
    const AppContextData& context = *AppContextData::Instance();
    if (m_wait == Wait::ForUnbinding || (!context.Enrolled() && !context.SchoolCode().empty()))
        ForgetEnrolment();
    else if (m_wait == Wait::ForNothing && PipeClientService::Instance()->IsConnected())
        m_request = {}; // whose result was lost with the link before, and which has not gone well
    EndWaiting();
    Form().Tags().TagsListDelete();
    Form().ClearErrors();
    SetErrorAreaVisible(false);
    SetReadOnly(false);
    ShowButton(ButtonState::Bind);
}

void UBodyEnroll::ShowButton(ButtonState button) {
    SetButton(button);
    ShowEnrolled(button == ButtonState::Unbind);
    m_dialogs->HideOthers(button, m_machine->IsIn(EnrollStates::Connecting()));
}

void UBodyEnroll::InvokeWindowHided() {
    SetReadOnly(false);
    Form().ClearErrors();
    SetErrorAreaVisible(false);
}

void UBodyEnroll::InvokeConnected() {
    m_dialogs->ShowUnenrolment();
}

void UBodyEnroll::InvokeDisConnected() {
    m_dialogs->ShowFailure(ButtonState::Connect, QT_TR_NOOP("bind_result_disconnect_error_tip"),
                           QT_TR_NOOP("dialog_connect_fail_content_text"),
                           QT_TR_NOOP("view_register_windows_button_connect"));
}

void UBodyEnroll::InvokeDeviceNameChanged(const std::string& body) {
    DeviceNameProperty property;
    property.ReadFromString(body);
    LOG(INFO) << "UBodyEnroll::InvokeDeviceNameChanged " << LogText(property.name);
    if (property.name.empty())
        return; // a device has a name: this is none, or cannot be read
    AppContextData::Instance()->SetDeviceName(property.name);
    Form().Name().SetText(QString::fromStdString(property.name));
}

void UBodyEnroll::InvokeDeviceTagsChanged(const std::string& body) {
    DeviceTagsProperty property;
    property.tags = AppContextData::Instance()->DeviceTags(); // stays when the body cannot be read
    property.ReadFromString(body);
    LOG(INFO) << "UBodyEnroll::InvokeDeviceTagsChanged " << property.tags.size() << " tags";
    AppContextData::Instance()->SetDeviceTags(property.tags);
    GetConfigTags();
}

void UBodyEnroll::InvokeAdminAccountChanged(const std::string& body) {
    AdminAccountDataNotify notify;
    notify.ReadFromString(body);
    LOG(INFO) << "UBodyEnroll::InvokeAdminAccountChanged " << LogText(notify.email);
    if (notify.email.empty())
        return;
    AppContextData::Instance()->SetAdminAccount(notify.email);
    Form().Account().SetText(QString::fromStdString(notify.email));
}

void UBodyEnroll::InvokeUsbArrived(const QString& drive, bool mayEnroll) {
    m_usb->FindEnrollJson({drive}, mayEnroll);
}

void UBodyEnroll::InvokeUsbRemoved(const QString& drive) {
    m_usb->Forget(drive);
}

void UBodyEnroll::OnEnrollJsonFound(const EnrollmentFile& file, bool mayEnroll) {
    if (m_wait != Wait::ForNothing)
        return;
    if (!file.IsUsable()) {
        Window().Notify(NoticeKind::Warning, file.Refusal());
        return;
    }
    BeginOnce(); // which would empty the form after it is filled, as under a lock the window stays away
    if (mayEnroll && !AppContextData::Instance()->Enrolled())
        Window().OpenEnrolmentPage();
    FillFromUsbEnrollmentFile(file.content);
}

void UBodyEnroll::FillFromUsbEnrollmentFile(const UsbEnrollmentFile& file) {
    if (AppContextData::Instance()->Enrolled()) {
        Window().Notify(NoticeKind::Warning, tr("usb_bind_failed"));
        return;
    }
    Form().Fill(file);
    if (!m_dialogs->ShowUsbFile(m_usb->Path())) // the user has left the page while the drive was read
        Window().Notify(NoticeKind::Success, tr("usb_enroll_alert_title"));
}
