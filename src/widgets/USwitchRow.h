#pragma once

#include <QFrame>

class QLabel;
class UIconLabel;
class USwitch;

/// A switch with its title, and below that what it does. GUI thread.
class USwitchRow : public QFrame {
    Q_OBJECT

public:
    explicit USwitchRow(QWidget* parent = nullptr);

    /// In the language in use. Without a `tip` there is the title alone.
    void SetTexts(const QString& title, const QString& tip = {});

    bool IsOn() const;
    /// Moves the switch and tells nobody.
    void SetOn(bool on);

    /// A held switch bears a lock, and does not move when it is pressed.
    void SetHeld(bool held);

signals:
    /// The user has pressed the switch while it was held.
    void HeldPressed();
    /// The user has moved the switch.
    void Switched(bool on);

private:
    USwitch* m_switch;
    UIconLabel* m_lock;
    QLabel* m_title;
    QLabel* m_tip;
};
