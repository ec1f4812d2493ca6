#pragma once

#include "platform/application/Clock.h"
#include "widgets/UOverlay.h"

class PasswordPrompt;

/// Asks for the six digits before the device is unenrolled: the unlock password or the unbind password. The
/// right ones send the request, and then the signal comes. It goes, and sends nothing, with its page, when
/// the link to the management service is down, and when the device is no longer enrolled. GUI thread.
class UBodyEnrollUnModal : public UOverlay {
    Q_OBJECT

public:
    explicit UBodyEnrollUnModal(QWidget* page, const Clock& clock = Clock::System());

signals:
    /// The request to unenrol was handed to the link.
    void UnEnrollingState();
    /// Follows UnEnrollingState: the link has not taken it.
    void NotSent();

protected:
    void Presented() override;
    void changeEvent(QEvent* event) override;

private:
    void Initialization();
    void InitConnect();
    void LanguageChanges();
    void OnConfirmed();

    QWidget* const m_page;
    PasswordPrompt* m_prompt;
};
