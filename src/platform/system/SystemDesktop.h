#pragma once

#include <QtGlobal>
#include <optional>
#include <qwindowdefs.h>

class QWidget;
class QWindow;

/// Native window and input facts and acts that Qt does not offer. GUI thread.
class SystemDesktop {
public:
    virtual ~SystemDesktop() = default;

    /// Before the application object is made: leaves out what Qt would load and this program never uses.
    virtual void PrepareApplication() const = 0;

    /// Once the application object is there: its windows may take the foreground from other programs.
    virtual void AllowTakingForeground() const = 0;

    /// Lifts the window to the topmost band above all others, without moving, resizing or activating it.
    virtual void RaiseTopmost(WId window) const = 0;

    /// While held, no key opens a menu of the system's or switches windows. Ctrl+Alt+Del stays the system's.
    /// X11 lets only a window hold the keyboard that can be seen, so ask again when it is; asking twice is
    /// no harm.
    virtual void HoldKeyboard(QWindow& window, bool hold) const = 0;

    /// Makes the native window of a program that starts unseen: it receives messages, and shows up neither
    /// on screen nor on the task bar.
    virtual void CreateHidden(QWidget& window) const = 0;

    /// Milliseconds since the user last touched keyboard, mouse or screen in this session;
    /// -1 when the system cannot tell.
    virtual qint64 MillisecondsSinceInput() const = 0;

    /// Whether the task bar, and the tray in it, is dark; empty where it looks as the other windows do.
    /// May change at any time, unannounced.
    virtual std::optional<bool> IsTaskbarDark() const = 0;

    static const SystemDesktop& Native();
};
