#pragma once

#include "lock/LockMarker.h"
#include "lock/TopmostCover.h"
#include "platform/application/Clock.h"
#include "platform/application/EndTime.h"
#include "platform/application/IdleTimer.h"
#include "platform/link/PipeKey.h"
#include "platform/system/SystemInput.h"
#include "platform/system/SystemWindows.h"

#include <QTimer>
#include <QWidget>
#include <memory>
#include <string>

namespace Ui {
class UDeviceScreenLock;
}

/// The lock that the service puts over the screen, until it says otherwise or until a time of day.
/// Six right digits release it. Listens to the pipe by itself. A lock in force leaves a marker, with which
/// the next start of the program locks again. GUI thread.
class UDeviceScreenLock : public QWidget {
    Q_OBJECT

public:
    explicit UDeviceScreenLock(const Clock& clock = Clock::System(),
                               const SystemWindows& windows = SystemWindows::Native(),
                               const SystemInput& input = SystemInput::Native());
    ~UDeviceScreenLock() override;

    /// Shows the lock that was in force when the program ended last, if it still is.
    void Resume();

    void setVisible(bool visible) override;

signals:
    void VisibleChanged(bool visible);
    /// What covers the screen was destroyed from outside: only a new start of the program can lock again.
    void Lost();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Initialization();
    void InitConnect();
    void OnPipeDataReceived(PipeKey key, const std::string& body);
    void ProcessLock(const std::string& body);
    void Release();

    void UpdateUI();
    void UpdateTexts();
    void UpdateNotes();
    void ShowMessageView();
    void ShowPasswordView();

    void OnPasswordCompleted();
    void OnUnlockTimer();
    void OnIdle();

    const Clock& m_clock;
    std::unique_ptr<Ui::UDeviceScreenLock> m_ui;
    const SystemWindows& m_windows;
    const LockMarker m_marker;
    std::unique_ptr<TopmostCover> m_cover;
    QTimer m_backTimer{this};
    QTimer m_unlockTimer{this};
    IdleTimer m_idleTimer;
    EndTime m_end;
};
