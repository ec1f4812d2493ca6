#pragma once

#include <QCoreApplication>

/// The text of a translation key, in the language in use; for code that has no tr(). GUI thread.
inline QString Text(const char* key) {
    return QCoreApplication::translate("", key);
}
