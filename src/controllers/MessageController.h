#pragma once

#include "platform/link/ControllerBase.h"

/// Clock format, wallpaper and the administrator's messages and files.
class MessageController : public ControllerBase {
    Q_OBJECT
};
