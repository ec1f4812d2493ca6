#pragma once

#include "widgets/UFactsPage.h"

/// The pop-up windows that the organisation does not want here.
class UBodyFeaturesPopups : public UFactsPage {
    Q_OBJECT

public:
    explicit UBodyFeaturesPopups(QWidget* parent);
};
