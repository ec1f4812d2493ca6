#pragma once

#include <QScrollArea>

/// A scroll area that a finger drags and flings.
class GestureScrollArea : public QScrollArea {
    Q_OBJECT

public:
    explicit GestureScrollArea(QWidget* parent = nullptr);

    /// Scrolls the area that the widget lies in, if it lies in one, so far that the widget is seen, as soon
    /// as it has its place.
    static void Reveal(QWidget* widget);
};
