#pragma once

#include "widgets/UFactsPage.h"

/// How a person reports a problem.
class UFeedback : public UFactsPage {
    Q_OBJECT

public:
    explicit UFeedback(QWidget* parent = nullptr);
};
