#pragma once

#include <QPushButton>

/// The cross that leaves what is on screen.
class UExitButton : public QPushButton {
    Q_OBJECT

public:
    explicit UExitButton(QWidget* parent = nullptr);

signals:
    void Exited();

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();
};
