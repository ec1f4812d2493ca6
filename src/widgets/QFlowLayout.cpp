#include "widgets/QFlowLayout.h"

#include <QApplication>
#include <QWidget>

QFlowLayout::QFlowLayout(QWidget* parent, int margin, int hSpacing, int vSpacing)
    : QLayout(parent), m_horizontalSpacing(hSpacing), m_verticalSpacing(vSpacing) {
    setContentsMargins(margin, margin, margin, margin);
}

QFlowLayout::~QFlowLayout() {
    qDeleteAll(m_items);
}

void QFlowLayout::addItem(QLayoutItem* item) {
    m_items.append(item);
}

int QFlowLayout::count() const {
    return m_items.size();
}

QLayoutItem* QFlowLayout::itemAt(int index) const {
    return m_items.value(index);
}

QLayoutItem* QFlowLayout::takeAt(int index) {
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int QFlowLayout::horizontalSpacing() const {
    return m_horizontalSpacing >= 0 ? m_horizontalSpacing : SmartSpacing(QStyle::PM_LayoutHorizontalSpacing);
}

int QFlowLayout::verticalSpacing() const {
    return m_verticalSpacing >= 0 ? m_verticalSpacing : SmartSpacing(QStyle::PM_LayoutVerticalSpacing);
}

Qt::Orientations QFlowLayout::expandingDirections() const {
    return {};
}

bool QFlowLayout::hasHeightForWidth() const {
    return true;
}

int QFlowLayout::heightForWidth(int width) const {
    return LayOut(QRect(0, 0, width, 0), Pass::Measure);
}

QSize QFlowLayout::minimumSize() const {
    QSize largest;
    for (const QLayoutItem* item : m_items)
        largest = largest.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return largest.expandedTo({0, 0}) +
           QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

QSize QFlowLayout::sizeHint() const {
    return minimumSize();
}

void QFlowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    LayOut(rect, Pass::Move);
}

int QFlowLayout::LayOut(const QRect& rect, Pass pass) const {
    const QRect area = rect.marginsRemoved(contentsMargins());
    const int areaEnd = area.x() + area.width();
    const int hSpacing = horizontalSpacing();
    const int vSpacing = verticalSpacing();
    const bool mirrored = parentWidget() ? parentWidget()->isRightToLeft() : QGuiApplication::isRightToLeft();

    int x = area.x();
    int y = area.y();
    int rowHeight = 0;
    for (QLayoutItem* item : m_items) {
        // A hidden widget takes no place; a spacer, which calls itself empty too, does.
        if (item->widget() && item->isEmpty())
            continue;
        const QSize hint = item->sizeHint();
        if (x + hint.width() > areaEnd && rowHeight > 0) {
            x = area.x();
            y += rowHeight + (vSpacing >= 0 ? vSpacing : StyleGap(*item, Qt::Vertical));
            rowHeight = 0;
        }
        if (pass == Pass::Move)
            item->setGeometry({{mirrored ? area.x() + areaEnd - x - hint.width() : x, y}, hint});
        x += hint.width() + (hSpacing >= 0 ? hSpacing : StyleGap(*item, Qt::Horizontal));
        rowHeight = qMax(rowHeight, hint.height());
    }
    return y + rowHeight - rect.y() + contentsMargins().bottom();
}

int QFlowLayout::SmartSpacing(QStyle::PixelMetric metric) const {
    if (auto* widget = qobject_cast<QWidget*>(parent()))
        return widget->style()->pixelMetric(metric, nullptr, widget);
    if (auto* layout = qobject_cast<QLayout*>(parent()))
        return layout->spacing();
    return -1;
}

int QFlowLayout::StyleGap(const QLayoutItem& item, Qt::Orientation orientation) const {
    const QWidget* widget = const_cast<QLayoutItem&>(item).widget();
    const QStyle* style = widget ? widget->style() : QApplication::style();
    return style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, orientation);
}
