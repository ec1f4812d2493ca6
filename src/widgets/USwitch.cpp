#include "widgets/USwitch.h"

#include "platform/context/Theme.h"

#include <QPainter>

namespace {

constexpr QSize Size(64, 44);
constexpr QSizeF Track(48, 26);
constexpr qreal KnobInset = 5;
constexpr qreal FocusGap = 4;

} // namespace

USwitch::USwitch(QWidget* parent) : QAbstractButton(parent) {
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize USwitch::sizeHint() const {
    return Size;
}

void USwitch::nextCheckState() {
    if (!m_held)
        QAbstractButton::nextCheckState();
}

void USwitch::paintEvent(QPaintEvent*) {
    const Theme& theme = *Theme::Instance();
    const auto color = [&theme](const char* token) { return theme.Color(QLatin1String(token)); };
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF track(QPointF(), Track);
    track.moveCenter(QRectF(rect()).center());
    const qreal round = track.height() / 2;
    if (hasFocus()) {
        const QRectF ring = track.adjusted(-FocusGap, -FocusGap, FocusGap, FocusGap);
        painter.setPen(QPen(color("focus"), theme.Length(QStringLiteral("focusWidth"))));
        painter.drawRoundedRect(ring, round + FocusGap, round + FocusGap);
    }

    const char* ink = !isEnabled() ? "textDisabled" : isChecked() && !m_held ? "accent" : "borderStrong";
    painter.setPen(QPen(color(ink), 2));
    painter.setBrush(isChecked() ? color(ink) : color(isEnabled() && underMouse() ? "hover" : "window"));
    painter.drawRoundedRect(track.adjusted(1, 1, -1, -1), round - 1, round - 1);

    QRectF knob = track.adjusted(KnobInset, KnobInset, -KnobInset, -KnobInset);
    const bool atRight = isChecked() != isRightToLeft();
    knob.setLeft(atRight ? knob.right() - knob.height() : knob.left());
    knob.setWidth(knob.height());
    painter.setPen(Qt::NoPen);
    painter.setBrush(color(isChecked() ? "window" : ink));
    painter.drawEllipse(knob);
}
