#pragma once

#include <qwindowdefs.h>

class QWidget;

/// What the desktop does with this program's own windows, beyond what Qt offers. GUI thread.
class SystemWindows {
public:
    virtual ~SystemWindows() = default;

    /// Once the application object is there: its windows may take the foreground from other programs.
    virtual void AllowTakingForeground() const = 0;

    /// Makes the native window of a program that starts unseen: it receives messages, and shows up neither
    /// on screen nor on the task bar.
    virtual void CreateHidden(QWidget& window) const = 0;

    /// Lifts the window to the topmost band above all others, without moving, resizing or activating it.
    virtual void RaiseTopmost(WId window) const = 0;

    /// Places the topmost window `window` directly below `above`, which is topmost too, without lifting it
    /// over anything on the way.
    virtual void PlaceBelow(WId window, WId above) const = 0;

    static const SystemWindows& Native();
};
