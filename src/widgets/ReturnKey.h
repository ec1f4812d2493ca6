#pragma once

class QKeyEvent;
class QWidget;

/// Return presses the button that has the focus in the widget; a key that is held presses once. Returns
/// whether the key was for a button. GUI thread.
bool PressFocusedButton(const QWidget& widget, const QKeyEvent& key);
