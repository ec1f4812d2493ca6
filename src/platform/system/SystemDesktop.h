#pragma once

#include <QtGlobal>
#include <qwindowdefs.h>

/// Native window and input facts and acts that Qt does not offer. GUI thread.
class SystemDesktop {
public:
    virtual ~SystemDesktop() = default;

    /// Lifts the window to the topmost band above all others, without moving, resizing or activating it.
    virtual void RaiseTopmost(WId window) const = 0;

    /// Takes the window off the task bar; returns the style that RestoreTaskbarStyle takes back.
    virtual quintptr HideFromTaskbar(WId window) const = 0;
    virtual void RestoreTaskbarStyle(WId window, quintptr style) const = 0;

    /// Milliseconds since the user last touched keyboard, mouse or screen in this session;
    /// -1 when the system cannot tell.
    virtual qint64 MillisecondsSinceInput() const = 0;

    static const SystemDesktop& Native();
};
