#pragma once

#include "lock/PasswordAttempts.h"

#include <QFrame>
#include <QTimer>

class PasswordPad;
class QBoxLayout;
class QLabel;
class UTextButton;

/// Asks for the six digits that unlock what is locked, and slows guessing down. A dialog holds one, states
/// its texts, and does what the right password or the user's leaving calls for. Shown anew it starts anew;
/// only the attempts are remembered. GUI thread.
class PasswordPrompt : public QFrame {
    Q_OBJECT

public:
    struct Texts {
        QString title;
        QString content;
        QString tip = {}; ///< empty: there is none
    };

    explicit PasswordPrompt(const Clock& clock, QWidget* parent = nullptr);

    void SetTexts(const Texts& texts);

    /// From now on the password that allows an unenrolment is right, too.
    void AcceptUnbindPassword() { m_acceptsUnbindPassword = true; }

    /// Compares what was typed with the password that the service has set.
    void HandleConfirm();

    /// Looks at the attempts, and takes the boxes out of use or gives them back.
    void CheckForceInputPassword(bool wrongAttempt);

    /// Ends the wait for the lock-out's end, empties the boxes and masks them.
    void Clear();

signals:
    /// The password was right.
    void Confirmed();
    /// The user wants to leave.
    void Closed();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Status { None, Wrong, LockedOut };

    void Initialization();
    void InitConnect();
    void OnButtonOkClicked() { HandleConfirm(); }
    void OnButtonCloseClicked() { emit Closed(); }
    bool IsRight() const;
    void OnTimer();
    void Arrange();
    void SetUsable(bool usable);
    void FocusStart();
    void SetStatus(Status status);
    void AnnounceStatus();
    void LanguageChanges();

    PasswordAttempts m_attempts;
    bool m_acceptsUnbindPassword = false;
    Status m_status = Status::None;
    bool m_isAnswered = false; // nothing was typed since the last wrong attempt
    QBoxLayout* m_columns;
    QLabel* m_title;
    QLabel* m_content;
    PasswordPad* m_pad;
    QLabel* m_statusLabel;
    QLabel* m_tip;
    UTextButton* m_close;
    UTextButton* m_ok;
    QTimer m_lockOutTimer{this};
};
