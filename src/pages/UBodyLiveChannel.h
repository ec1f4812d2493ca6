#pragma once

#include "widgets/UFactsPage.h"

/// The live channels that the organisation offers here.
class UBodyLiveChannel : public UFactsPage {
    Q_OBJECT

public:
    explicit UBodyLiveChannel(QWidget* parent);
};
