#include "widgets/GestureScrollArea.h"

#include <QScroller>
#include <QTimer>

GestureScrollArea::GestureScrollArea(QWidget* parent) : QScrollArea(parent) {
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}

void GestureScrollArea::Reveal(QWidget* widget) {
    QTimer::singleShot(0, widget, [widget] {
        for (QWidget* outer = widget->parentWidget(); outer; outer = outer->parentWidget())
            if (auto* area = qobject_cast<GestureScrollArea*>(outer))
                area->ensureWidgetVisible(widget);
    });
}
