#pragma once

#include "platform/application/IotStatus.h"

#include <QString>

class QWidget;

/// How the state of the link to the organisation looks and reads wherever it is shown: never by colour alone.
struct StatusLook {
    QString property; ///< value of the dynamic property "state" that the style sheet colours by
    QString icon;
    QString words; ///< in the language in use

    /// The look of what the service last reported. While the service itself is not reached, nothing that it
    /// once said is shown as if it still held.
    static StatusLook Of(IotStatus reported);

    /// The look of the state that the window which `part` is in knows.
    static StatusLook InWindowOf(const QWidget* part);

    bool operator==(const StatusLook& other) const {
        return property == other.property && icon == other.icon && words == other.words;
    }
};
