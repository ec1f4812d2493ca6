#pragma once

#include <QAbstractButton>

/// On or off, told by place and shape as well as by colour. Its clicked() tells of the user's changes alone.
/// GUI thread.
class USwitch : public QAbstractButton {
    Q_OBJECT

public:
    explicit USwitch(QWidget* parent = nullptr);

    /// While held, a press is told as every other and does not move the switch.
    void SetHeld(bool held) { m_held = held; }
    bool IsHeld() const { return m_held; }

    QSize sizeHint() const override;

protected:
    void nextCheckState() override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_held = false;
};
