#pragma once

#include <QBasicTimer>
#include <QWidget>

/// A thin line along which a piece runs while the window works on something of unknown length.
class ULoadingBar : public QWidget {
    Q_OBJECT

public:
    explicit ULoadingBar(QWidget* parent = nullptr);

    /// The line keeps its place in the layout when it is idle.
    void SetBusy(bool busy);
    bool IsBusy() const { return m_timer.isActive(); }

    QSize sizeHint() const override { return {120, 4}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer m_timer;
    qreal m_position = 0.3; // of the running piece, 0 to 1
};
