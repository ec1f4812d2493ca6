#pragma once

#include <QWidget>

/// Every shared control in every state, side by side.
class ControlSheet : public QWidget {
public:
    ControlSheet();
};
