#pragma once

#include "platform/link/ControllerBase.h"

/// Carries messages that other threads post as PipeSendEvent to the pipe. GUI thread.
class PopupsController : public ControllerBase {
    Q_OBJECT

public:
    PopupsController();

    bool eventFilter(QObject* watched, QEvent* event) override;
};
