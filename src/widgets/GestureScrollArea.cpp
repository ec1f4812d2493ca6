#include "widgets/GestureScrollArea.h"

#include <QScroller>

GestureScrollArea::GestureScrollArea(QWidget* parent) : QScrollArea(parent) {
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}
