#include "enroll/EnrollDialogs.h"

#include "enroll/EnrollAgreement.h"
#include "enroll/EnrollForm.h"
#include "enroll/UBodyEnrollModal.h"
#include "enroll/UBodyEnrollPermissionsModal.h"
#include "enroll/UBodyEnrollTip.h"
#include "enroll/UBodyEnrollUsbAlert.h"
#include "lock/UBodyEnrollUnModal.h"
#include "platform/context/DevicePermissions.h"

#include <QCheckBox>

EnrollDialogs::EnrollDialogs(EnrollView* page) : QObject(page), m_page(page) {}

void EnrollDialogs::ShowFailure(ButtonState retry, const char* title, const char* content,
                                const char* cancel) {
    if (!IsInView())
        return; // it goes with the page
    if (!m_failure) {
        m_failure = new UBodyEnrollModal(m_page);
        connect(m_failure, &UBodyEnrollModal::OnOk, this, [this] {
            if (m_retry != ButtonState::Connect) // which would open this dialog again
                emit RetryWanted(m_retry);
        });
    }
    m_retry = retry;
    m_failure->setTitle(title);
    m_failure->setContent(content);
    m_failure->setOkText(QT_TR_NOOP("dialog_detect_text"));
    m_failure->setCancelText(cancel);
    m_failure->show();
}

void EnrollDialogs::ShowPermissions() {
    if (!m_permissions)
        m_permissions = new UBodyEnrollPermissionsModal(m_page, *DevicePermissions::OfApplication());
    if (IsInView())
        m_permissions->show();
    m_permissions->EnrollSuccessfullyToast();
}

void EnrollDialogs::ShowUnenrolment() {
    if (!m_unenrolment) {
        m_unenrolment = new UBodyEnrollUnModal(m_page);
        connect(m_unenrolment, &UBodyEnrollUnModal::UnEnrollingState, this,
                &EnrollDialogs::UnenrolmentRequested);
        connect(m_unenrolment, &UBodyEnrollUnModal::NotSent, this, &EnrollDialogs::UnenrolmentNotSent);
    }
    m_unenrolment->show();
}

void EnrollDialogs::ShowAgreementTip() {
    if (!m_tip)
        m_tip = new UBodyEnrollTip(m_page);
    m_tip->ShowAt(&m_page->Form().Agreement().Box());
}

bool EnrollDialogs::ShowUsbFile(const QString& path) {
    if (!IsInView())
        return false;
    if (!m_usbAlert)
        m_usbAlert = new UBodyEnrollUsbAlert(m_page);
    m_usbAlert->SetFile(path);
    m_usbAlert->show();
    return true;
}

void EnrollDialogs::HideOthers(ButtonState button, bool connecting) {
    if (m_failure && (m_retry != button || connecting))
        m_failure->hide();
    if (m_permissions && button != ButtonState::Unbind)
        m_permissions->hide();
    if (m_usbAlert && button != ButtonState::Bind)
        m_usbAlert->hide();
    if (m_tip && button != ButtonState::Bind)
        m_tip->hide();
}
