#include "widgets/PermissionSwitches.h"

#include "platform/context/AppContextData.h"
#include "widgets/CommonFacts.h"
#include "widgets/USwitchRow.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QVBoxLayout>

PermissionSwitches::PermissionSwitches(DevicePermissions& permissions, QWidget* parent)
    : QWidget(parent),
      m_permissions(permissions),
      m_location(new USwitchRow),
      m_screenView(new USwitchRow),
      m_remoteControl(new USwitchRow),
      m_note(new UTextLabel("pageNote")) {
    m_location->setObjectName(QStringLiteral("locationRow"));
    m_screenView->setObjectName(QStringLiteral("screenViewRow"));
    m_remoteControl->setObjectName(QStringLiteral("remoteControlRow"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    for (USwitchRow* row : {m_location, m_screenView, m_remoteControl}) {
        column->addWidget(row);
        connect(row, &USwitchRow::HeldPressed, this, &PermissionSwitches::HeldPressed);
    }
    column->addWidget(m_note);
    connect(m_location, &USwitchRow::Switched, this, &PermissionSwitches::OnLocationControlStateChange);
    connect(m_screenView, &USwitchRow::Switched, this, &PermissionSwitches::OnScreenViewStateChange);
    connect(m_remoteControl, &USwitchRow::Switched, this, &PermissionSwitches::ReportWebrtcControlState);
    connect(&m_permissions, &DevicePermissions::Changed, this, &PermissionSwitches::ShowAll);
    connect(&m_permissions, &DevicePermissions::HeldChanged, this, [this] { SetOpened(false); });
    ShowAll();
}

void PermissionSwitches::SetOpened(bool opened) {
    m_opened = opened;
    ShowAll();
}

// A switch must not show what the service has not been told.
void PermissionSwitches::Change(DevicePermissions::Switch which, bool on) {
    const bool isSent = m_permissions.Change(which, on);
    ShowAll();
    emit isSent ? Sent() : NotSent();
}

void PermissionSwitches::ShowAll() {
    using Switch = DevicePermissions::Switch;
    ShowRow(*m_location, Switch::Location, tr("device_location_title_v2"), {});
    ShowRow(*m_screenView, Switch::ScreenView, tr("settings_monitor_screen_preview_title"),
            tr("settings_monitor_screen_preview_tip"));
    ShowRow(*m_remoteControl, Switch::RemoteControl, tr("settings_monitor_title_v2"),
            tr("settings_monitor_tip_v2"));
    ShowNote();
}

void PermissionSwitches::ShowRow(USwitchRow& row, DevicePermissions::Switch which, const QString& title,
                                 const QString& tip) {
    const bool isHeld = m_permissions.IsHeld(which);
    const bool isLocked = isHeld && !m_opened;
    const QString held =
        (m_opened ? tr("permission_held_opened") : tr("permission_held")).arg(CommonFacts::Manager());
    row.SetTexts(title, !isHeld ? tip : tip.isEmpty() ? held : tip + QLatin1Char('\n') + held);
    row.SetOn(m_permissions.IsOn(which));
    row.SetHeld(isLocked);
    row.setEnabled(isLocked || which != DevicePermissions::Switch::RemoteControl ||
                   m_permissions.IsOn(DevicePermissions::Switch::ScreenView));
}

void PermissionSwitches::ShowNote() {
    const bool isLinked = AppContextData::Instance()->Linked();
    m_note->setText(isLinked ? tr("permission_old") : tr("permission_no_service"));
    m_note->setVisible(!isLinked || !m_permissions.IsConfirmed());
}

void PermissionSwitches::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        ShowAll();
    QWidget::changeEvent(event);
}
