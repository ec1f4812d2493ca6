#include "widgets/GestureScrollArea.h"

#include <QCoreApplication>
#include <QLayout>
#include <QScroller>
#include <QTimer>

GestureScrollArea::GestureScrollArea(QWidget* parent) : QScrollArea(parent) {
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}

void GestureScrollArea::Reveal(QWidget* widget) {
    QTimer::singleShot(0, widget, [widget] {
        for (QWidget* outer = widget->parentWidget(); outer; outer = outer->parentWidget()) {
            // By themselves nested layouts settle one level in each pass of the event loop.
            if (outer->layout())
                outer->layout()->activate();
            if (auto* area = qobject_cast<GestureScrollArea*>(outer)) {
                QCoreApplication::sendPostedEvents(area->viewport(), QEvent::LayoutRequest);
                area->ensureWidgetVisible(widget);
            }
        }
    });
}
