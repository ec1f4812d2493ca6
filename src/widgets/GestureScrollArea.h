#pragma once

#include <QScrollArea>

/// A scroll area that a finger drags and flings.
class GestureScrollArea : public QScrollArea {
    Q_OBJECT

public:
    explicit GestureScrollArea(QWidget* parent = nullptr);
};
