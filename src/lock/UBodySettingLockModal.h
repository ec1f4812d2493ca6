#pragma once

#include "platform/application/Clock.h"
#include "widgets/UOverlay.h"

class PasswordPrompt;

/// Asks for the six digits before a setting is changed that the administrator has locked. Goes with its page,
/// and when the device is no longer enrolled, for then nothing is locked. GUI thread.
class UBodySettingLockModal : public UOverlay {
    Q_OBJECT

public:
    explicit UBodySettingLockModal(QWidget* page, const Clock& clock = Clock::System());

signals:
    /// The password was right: the setting may be changed.
    void PermissionsLock();

protected:
    void Presented() override;
    void changeEvent(QEvent* event) override;

private:
    void Initialization();
    void InitConnect();
    void LanguageChanges();

    PasswordPrompt* m_prompt;
};
