#include "enroll/UBodyEnrollPermissionsModal.h"

#include "enroll/UEnrollToast.h"
#include "entity/SettingsEntities.h"
#include "platform/link/PipeClientService.h"
#include "platform/link/RyxPackage.h"
#include "widgets/AccessibleRole.h"
#include "widgets/USwitchRow.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int CardWidth = 600;

/// The service's names of what the switches stand for.
constexpr const char* LocationNames[] = {"location"};
constexpr const char* ScreenViewNames[] = {"screen", "screenshot"};
constexpr const char* RemoteControlNames[] = {"remoteControl"};

template <class Names>
bool IsGranted(const std::vector<std::string>& granted, const Names& names) {
    return std::find_first_of(granted.begin(), granted.end(), std::begin(names), std::end(names)) !=
           granted.end();
}

} // namespace

UBodyEnrollPermissionsModal::UBodyEnrollPermissionsModal(QWidget* page)
    : UOverlay(page),
      m_title(new UTextLabel("dialogTitle")),
      m_footer(new UTextLabel("dialogContent")),
      m_location(new USwitchRow),
      m_screenView(new USwitchRow),
      m_remoteControl(new USwitchRow),
      m_done(new UTextButton(UTextButton::Look::Primary)) {
    Initialization();
    InitConnect();
    LanguageChanges();
    HideWith(page);
    SetPermissions({});
}

void UBodyEnrollPermissionsModal::Initialization() {
    setObjectName(QStringLiteral("UBodyEnrollPermissionsModal"));
    m_location->setObjectName(QStringLiteral("locationRow"));
    m_screenView->setObjectName(QStringLiteral("screenViewRow"));
    m_remoteControl->setObjectName(QStringLiteral("remoteControlRow"));
    m_done->setObjectName(QStringLiteral("doneButton"));
    QVBoxLayout* column = MakeCard(CardWidth);
    column->setObjectName(QStringLiteral("UBodyEnrollPermissionsModalClass"));
    column->addWidget(m_title);
    column->addWidget(m_location);
    column->addWidget(m_screenView);
    column->addWidget(m_remoteControl);
    column->addWidget(m_footer);
    column->addSpacing(12);
    column->addWidget(m_done, 0, Qt::AlignTrailing);
}

void UBodyEnrollPermissionsModal::InitConnect() {
    connect(m_location, &USwitchRow::Switched, this,
            &UBodyEnrollPermissionsModal::OnLocationControlStateChange);
    connect(m_screenView, &USwitchRow::Switched, this, &UBodyEnrollPermissionsModal::OnScreenViewStateChange);
    connect(m_remoteControl, &USwitchRow::Switched, this,
            &UBodyEnrollPermissionsModal::ReportWebrtcControlState);
    connect(m_done, &QPushButton::clicked, this, &QWidget::hide);
    PipeClientService::Instance()->Subscribe(this, &UBodyEnrollPermissionsModal::OnPipeDataReceived);
}

void UBodyEnrollPermissionsModal::SetPermissions(const std::vector<std::string>& granted) {
    m_location->SetOn(IsGranted(granted, LocationNames));
    m_controlTold = IsGranted(granted, RemoteControlNames);
    SetScreenView(IsGranted(granted, ScreenViewNames), m_controlTold);
}

// Who may not see the screen cannot control it.
void UBodyEnrollPermissionsModal::SetScreenView(bool on, bool control) {
    m_screenView->SetOn(on);
    m_remoteControl->setEnabled(on);
    m_remoteControl->SetOn(on && control);
}

void UBodyEnrollPermissionsModal::OnLocationControlStateChange(bool on) {
    if (!Report(PipeKey::LocationSetting, on))
        m_location->SetOn(!on);
}

void UBodyEnrollPermissionsModal::OnScreenViewStateChange(bool on) {
    if (!Report(PipeKey::ScreenShotSetting, on)) {
        m_screenView->SetOn(!on);
        return;
    }
    if (!on)
        ReportWebrtcControlState(false);
    SetScreenView(on, false);
}

void UBodyEnrollPermissionsModal::ReportWebrtcControlState(bool on) {
    if (Report(PipeKey::ScreenNotifySetting, on))
        m_controlTold = on;
    else
        m_remoteControl->SetOn(!on);
}

// A switch must not show what the service has not been told.
bool UBodyEnrollPermissionsModal::Report(PipeKey key, bool on) {
    DeviceSettingNotify state;
    state.status = on;
    const bool isSent =
        PipeClientService::Instance()->Send(RyxPackage::PackageData(key, state.WriteToString()));
    if (isSent)
        ModifiedSuccessfullyToast();
    else
        UEnrollToast::Of(this)->Tell(NoticeKind::Error, tr("permission_not_changed"));
    return isSent;
}

void UBodyEnrollPermissionsModal::OnPipeDataReceived(PipeKey key, const std::string& body) {
    if (key != PipeKey::LocationSetting && key != PipeKey::ScreenShotSetting &&
        key != PipeKey::ScreenNotifySetting)
        return;
    DeviceSettingNotify state;
    state.status = key == PipeKey::LocationSetting     ? m_location->IsOn()
                   : key == PipeKey::ScreenShotSetting ? m_screenView->IsOn()
                                                       : m_controlTold; // stays if the body cannot be read
    state.ReadFromString(body);
    if (key == PipeKey::LocationSetting)
        m_location->SetOn(state.status);
    else if (key == PipeKey::ScreenShotSetting)
        SetScreenView(state.status, m_controlTold);
    else {
        m_controlTold = state.status;
        m_remoteControl->SetOn(m_controlTold && m_remoteControl->isEnabled());
    }
}

void UBodyEnrollPermissionsModal::EnrollSuccessfullyToast() {
    UEnrollToast::Of(this)->Tell(NoticeKind::Success, tr("bind_success"));
}

void UBodyEnrollPermissionsModal::ModifiedSuccessfullyToast() {
    UEnrollToast::Of(this)->Tell(NoticeKind::Success, tr("Modified successfully"));
}

void UBodyEnrollPermissionsModal::LanguageChanges() {
    const QString title = tr("setting_dialog_title");
    setAccessibleName(title);
    m_title->setText(title);
    m_location->SetTexts(tr("device_location_title_v2"));
    m_screenView->SetTexts(tr("settings_monitor_screen_preview_title"),
                           tr("settings_monitor_screen_preview_tip"));
    m_remoteControl->SetTexts(tr("settings_monitor_title_v2"), tr("settings_monitor_tip_v2"));
    m_footer->setText(tr("setting_permission_bottom_tip"));
    m_done->setText(tr("permission_done"));
}

void UBodyEnrollPermissionsModal::Presented() {
    m_done->setFocus(Qt::PopupFocusReason);
    AnnounceAlert(this);
}

void UBodyEnrollPermissionsModal::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    UOverlay::changeEvent(event);
}
