#pragma once

#include "widgets/UFactsPage.h"

/// Whether the device is connected, and by which addresses.
class UBodyNetwork : public UFactsPage {
    Q_OBJECT

public:
    explicit UBodyNetwork(QWidget* parent);
};
