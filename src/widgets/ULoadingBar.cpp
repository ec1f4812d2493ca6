#include "widgets/ULoadingBar.h"

#include "platform/context/Theme.h"
#include "widgets/AccessibleRole.h"

#include <QPainter>
#include <QTimerEvent>

namespace {

constexpr int TickMs = 33;
constexpr qreal StepPerTick = 0.02;
constexpr qreal PieceLength = 0.3;

} // namespace

ULoadingBar::ULoadingBar(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    SetAccessibleRole(this, QAccessible::ProgressBar);
}

void ULoadingBar::SetBusy(bool busy) {
    if (busy && !m_timer.isActive())
        m_timer.start(TickMs, this);
    else if (!busy)
        m_timer.stop();
    setAccessibleName(busy ? tr("loading") : QString());
    update();
}

void ULoadingBar::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_timer.timerId())
        return;
    m_position += StepPerTick;
    if (m_position > 1)
        m_position = 0;
    update();
}

void ULoadingBar::paintEvent(QPaintEvent*) {
    if (!IsBusy())
        return;
    QPainter painter(this);
    const qreal start = m_position * (1 + PieceLength) - PieceLength;
    QRectF piece(start * width(), 0, PieceLength * width(), height());
    if (isRightToLeft())
        piece.moveRight(width() - piece.left());
    painter.fillRect(rect(), Theme::Instance()->Color(QStringLiteral("accentSoft")));
    painter.fillRect(piece, Theme::Instance()->Color(QStringLiteral("accent")));
}
