#include "enroll/UBodyEnrollUsbAlert.h"

#include "widgets/UExitButton.h"

#include <QEvent>
#include <QFileInfo>

UBodyEnrollUsbAlert::UBodyEnrollUsbAlert(QWidget* page) : UAlert(page) {
    setObjectName(QStringLiteral("UBodyEnrollUsbAlert"));
    HideWith(page);
    LanguageChanges();
}

void UBodyEnrollUsbAlert::SetFile(const QString& path) {
    m_fileName = QFileInfo(path).fileName();
    LanguageChanges();
}

void UBodyEnrollUsbAlert::OnButtonExitClicked() {
    hide();
}

// The exit button stays in reach.
void UBodyEnrollUsbAlert::Presented() {
    UAlert::Presented();
    auto* exit = parentWidget()->findChild<UExitButton*>(QString(), Qt::FindDirectChildrenOnly);
    if (!exit)
        return;
    exit->raise();
    connect(exit, &UExitButton::Exited, this, &UBodyEnrollUsbAlert::OnButtonExitClicked,
            Qt::UniqueConnection);
}

void UBodyEnrollUsbAlert::LanguageChanges() {
    SetTitle(tr("usb_enroll_alert_title"));
    SetContent(tr("usb_enroll_alert_content").arg(m_fileName));
}

void UBodyEnrollUsbAlert::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    UAlert::changeEvent(event);
}
