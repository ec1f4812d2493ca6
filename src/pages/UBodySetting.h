#pragma once

#include "widgets/UFactsPage.h"

/// What the user may choose.
class UBodySetting : public UFactsPage {
    Q_OBJECT

public:
    explicit UBodySetting(QWidget* parent);
};
