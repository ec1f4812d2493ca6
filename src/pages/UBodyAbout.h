#pragma once

#include "widgets/UFactsPage.h"

/// Which version runs on which device.
class UBodyAbout : public UFactsPage {
    Q_OBJECT

public:
    explicit UBodyAbout(QWidget* parent);
};
