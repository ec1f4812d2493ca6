#pragma once

#include <QAbstractButton>

/// On or off, told by place and shape as well as by colour. Its clicked() tells of the user's changes alone.
/// GUI thread.
class USwitch : public QAbstractButton {
    Q_OBJECT

public:
    explicit USwitch(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
