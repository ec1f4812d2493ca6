#pragma once

#include "lock/TopmostCover.h"
#include "platform/application/Clock.h"
#include "platform/system/SystemInput.h"
#include "platform/system/SystemWindows.h"

#include <QWidget>
#include <memory>

class ControllerBase;
class PasswordPrompt;

/// Covers the desktop while the service keeps the system's settings locked; six right digits unlock them. It
/// stands below the screen lock and takes neither its keyboard nor its focus. It is no jail: whoever closes
/// it leaves, and the settings stay locked. GUI thread.
class USettingsLockMaskModal : public QWidget {
    Q_OBJECT

public:
    /// The `controller` sends what is to be sent. What the mask consists of is made when it is first shown,
    /// so that a start does not pay for it.
    explicit USettingsLockMaskModal(ControllerBase& controller, const Clock& clock = Clock::System(),
                                    const SystemWindows& windows = SystemWindows::Native(),
                                    const SystemInput& input = SystemInput::Native());

    /// Shows the mask, or brings it forward when it is there already.
    void BringForward();

    void setVisible(bool visible) override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Initialization();
    void InitConnect();
    void MakeCover();
    void OnLost();
    void LanguageChanges();
    void OnConfirmed();

    ControllerBase& m_controller;
    const Clock& m_clock;
    const SystemWindows& m_windows;
    const SystemInput& m_input;
    PasswordPrompt* m_prompt = nullptr;
    std::unique_ptr<TopmostCover> m_cover;
};
