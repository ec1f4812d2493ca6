#include "enroll/UBodyEnrollPermissionsModal.h"

#include "enroll/UEnrollToast.h"
#include "widgets/AccessibleRole.h"
#include "widgets/PermissionSwitches.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QVBoxLayout>

namespace {

constexpr int CardWidth = 600;

} // namespace

UBodyEnrollPermissionsModal::UBodyEnrollPermissionsModal(QWidget* page, DevicePermissions& permissions)
    : UOverlay(page),
      m_title(new UTextLabel("dialogTitle")),
      m_footer(new UTextLabel("dialogContent")),
      m_switches(new PermissionSwitches(permissions)),
      m_done(new UTextButton(UTextButton::Look::Primary)) {
    Initialization();
    InitConnect();
    LanguageChanges();
    HideWith(page);
}

void UBodyEnrollPermissionsModal::Initialization() {
    setObjectName(QStringLiteral("UBodyEnrollPermissionsModal"));
    m_done->setObjectName(QStringLiteral("doneButton"));
    QVBoxLayout* column = MakeCard(CardWidth);
    column->setObjectName(QStringLiteral("UBodyEnrollPermissionsModalClass"));
    column->addWidget(m_title);
    column->addWidget(m_switches);
    column->addWidget(m_footer);
    column->addSpacing(12);
    column->addWidget(m_done, 0, Qt::AlignTrailing);
}

void UBodyEnrollPermissionsModal::InitConnect() {
    connect(m_switches, &PermissionSwitches::Sent, this,
            &UBodyEnrollPermissionsModal::ModifiedSuccessfullyToast);
    connect(m_switches, &PermissionSwitches::NotSent, this,
            [this] { UEnrollToast::Of(this)->Tell(NoticeKind::Error, tr("permission_not_changed")); });
    connect(m_switches, &PermissionSwitches::HeldPressed, this, [this] {
        UEnrollToast::Of(this)->Tell(NoticeKind::Info,
                                     tr("permission_held_elsewhere").arg(tr("menu_settings")));
    });
    connect(m_done, &QPushButton::clicked, this, &QWidget::hide);
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
