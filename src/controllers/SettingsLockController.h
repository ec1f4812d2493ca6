#pragma once

#include "platform/link/ControllerBase.h"

/// The settings lock.
class SettingsLockController : public ControllerBase {
    Q_OBJECT
};
