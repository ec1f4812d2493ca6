#pragma once

#include "entity/AppEntities.h"

#include <QString>

/// A window in the words of the rules for pop-ups. To them two windows are the same when all their fields are
/// equal but for upper and lower case.
struct PopupWindow {
    QString program; ///< file name with extension
    QString className;
    QString title;
    QString productName;

    /// The window that the rule means. What the rule says of signer and folder takes no part.
    static PopupWindow Of(const PopupsTypeParams& rule);

    /// The same text for windows that differ in their products at most, which only their programs' files
    /// tell.
    QString Key() const;
    /// The same text for the same window.
    QString Identity() const;
};
