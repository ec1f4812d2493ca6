#pragma once

#include "platform/application/IotStatus.h"

#include <QString>

/// How a link state looks and reads wherever it is shown: never by colour alone.
struct StatusLook {
    QString property; ///< value of the dynamic property "state" that the style sheet colours by
    QString icon;
    QString words; ///< in the language in use

    static StatusLook Of(IotStatus status);
};
