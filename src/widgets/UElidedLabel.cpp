#include "widgets/UElidedLabel.h"

#include <QEvent>
#include <QTextDocument>

UElidedLabel::UElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    Align();
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
    return {qMin(sizeHint().width(), fontMetrics().averageCharWidth() * 6),
            QLabel::minimumSizeHint().height()};
}

void UElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    Elide();
}

void UElidedLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        Align();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGeometry();
        Elide();
    }
}

// A name stands where the layout wants it, whatever script it is written in.
void UElidedLabel::Align() {
    setAlignment(Qt::AlignVCenter | Qt::AlignAbsolute | (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
}

void UElidedLabel::Elide() {
    const QString shown = fontMetrics().elidedText(m_text, m_elideMode, contentsRect().width());
    setText(shown);
    // A tool tip takes markup for what it is.
    setToolTip(shown == m_text ? QString() : Qt::convertFromPlainText(m_text, Qt::WhiteSpaceNormal));
}
