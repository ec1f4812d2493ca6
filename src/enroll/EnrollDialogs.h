#pragma once

#include "enroll/EnrollView.h"

#include <string>
#include <vector>

class UBodyEnrollModal;
class UBodyEnrollPermissionsModal;
class UBodyEnrollTip;
class UBodyEnrollUnModal;
class UBodyEnrollUsbAlert;

/// What lies over the enrolment page. Each dialog is made when it is first needed, and goes with the page.
/// GUI thread.
class EnrollDialogs : public QObject {
    Q_OBJECT

public:
    using ButtonState = EnrollView::ButtonState;

    explicit EnrollDialogs(EnrollView* page);

    /// The service cannot be reached; offers another try of `retry`. The texts are translation keys.
    void ShowFailure(ButtonState retry, const char* title, const char* content, const char* cancel);
    /// The device is enrolled; shows what was granted.
    void ShowPermissions();
    /// Asks for the password before the device is unenrolled.
    void ShowUnenrolment();
    void ShowAgreementTip();
    /// The form was filled from this file on a drive. False when the page is not in view.
    bool ShowUsbFile(const QString& path);

    /// The page is in the state of `button` now, and perhaps about to connect: what is about another one
    /// goes.
    void HideOthers(ButtonState button, bool connecting);

signals:
    void RetryWanted(EnrollView::ButtonState retry);
    /// The request to unenrol was handed to the link; NotSent follows when that has not taken it.
    void UnenrolmentRequested();
    void UnenrolmentNotSent();

private:
    bool IsInView() const { return m_page->isVisibleTo(m_page->window()); }

    EnrollView* const m_page;
    UBodyEnrollModal* m_failure = nullptr;
    UBodyEnrollPermissionsModal* m_permissions = nullptr;
    UBodyEnrollUnModal* m_unenrolment = nullptr;
    UBodyEnrollTip* m_tip = nullptr;
    UBodyEnrollUsbAlert* m_usbAlert = nullptr;
    ButtonState m_retry = ButtonState::Bind; // what m_failure offers
};
