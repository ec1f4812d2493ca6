#include "widgets/ReturnKey.h"

#include <QAbstractButton>
#include <QKeyEvent>

bool PressFocusedButton(const QWidget& widget, const QKeyEvent& key) {
    auto* button = qobject_cast<QAbstractButton*>(widget.focusWidget());
    if (!button || (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter))
        return false;
    if (!key.isAutoRepeat())
        button->click();
    return true;
}
