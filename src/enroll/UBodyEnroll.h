#pragma once

#include "widgets/UFactsPage.h"

/// The enrolment of this device: which organisation manages it, and under which name.
class UBodyEnroll : public UFactsPage {
    Q_OBJECT

public:
    explicit UBodyEnroll(QWidget* parent);
};
