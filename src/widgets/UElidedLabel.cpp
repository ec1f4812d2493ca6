#include "widgets/UElidedLabel.h"

#include <QEvent>

UElidedLabel::UElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void UElidedLabel::SetText(const QString& text) {
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    Elide();
}

QSize UElidedLabel::sizeHint() const {
    const QMargins margins = contentsMargins();
    return {fontMetrics().horizontalAdvance(m_text) + margins.left() + margins.right() + 1,
            QLabel::sizeHint().height()};
}

QSize UElidedLabel::minimumSizeHint() const {
    return {qMin(sizeHint().width(), fontMetrics().averageCharWidth() * 6), QLabel::minimumSizeHint().height()};
}

void UElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    Elide();
}

void UElidedLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGeometry();
        Elide();
    }
}

void UElidedLabel::Elide() {
    const QString shown = fontMetrics().elidedText(m_text, Qt::ElideRight, contentsRect().width());
    setText(shown);
    setToolTip(shown == m_text ? QString() : m_text);
}
