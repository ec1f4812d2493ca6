#pragma once

#include "widgets/GestureScrollArea.h"

/// Shows a card in its middle, as narrow as it must be and as wide as it may; one that does not fit is
/// scrolled.
class UCentredArea : public GestureScrollArea {
    Q_OBJECT

public:
    /// Takes the card over.
    explicit UCentredArea(QWidget* card, QWidget* parent = nullptr);
};
