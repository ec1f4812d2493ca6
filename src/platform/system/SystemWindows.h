#pragma once

#include <QColor>
#include <QRect>
#include <QVector>
#include <functional>
#include <optional>
#include <qwindowdefs.h>

class QWidget;

/// What the desktop does with this program's own windows, beyond what Qt offers. Places are in physical
/// pixels of the whole desktop. GUI thread.
class SystemWindows {
public:
    /// What of a window another program may have changed.
    struct Facts {
        QRect place;
        bool shown = true;   ///< visible, neither minimised nor cloaked
        bool topmost = true; ///< in the topmost band, where there is one
        bool enabled = true;
        bool whole = true; ///< neither cut to a region nor transparent
        bool onTop = true; ///< a child of the desktop and not of another window
        bool operator==(const Facts& other) const {
            return place == other.place && shown == other.shown && topmost == other.topmost &&
                   enabled == other.enabled && whole == other.whole && onTop == other.onTop;
        }
    };

    virtual ~SystemWindows() = default;

    /// Once the application object is there: its windows may take the foreground from other programs.
    virtual void AllowTakingForeground() const = 0;

    /// The windows of that process may take the foreground as this one's may.
    virtual void GiveForegroundTo(quint32 /*process*/) const {}

    /// Makes the native window of a program that starts unseen: it receives messages, and shows up neither
    /// on screen nor on the task bar.
    virtual void CreateHidden(QWidget& window) const = 0;

    /// Lifts the window to the topmost band above all others, without moving, resizing or activating it.
    virtual void RaiseTopmost(WId window) const = 0;

    /// Places the topmost window `window` directly below `above`, which is topmost too, without lifting it
    /// over anything on the way.
    virtual void PlaceBelow(WId window, WId above) const = 0;

    /// The places of the screens, the primary one first; never empty.
    virtual QVector<QRect> ScreenPlaces() const = 0;

    /// Whether a window can be kept above everything here at all.
    virtual bool CanCover() const = 0;

    /// Before a window that is to cover a screen is shown: the window manager, gestures from the edges,
    /// press-and-hold and Peek leave it alone, and pixels that nobody paints, as there are at the edges when
    /// a scale does not divide the screen, have the color `background`.
    virtual void PrepareCover(QWidget& window, const QColor& background) const = 0;

    /// From now on every change that another program makes to the window is refused where the system asks,
    /// and told through `changed` where it only tells; `changed` is called on the GUI thread.
    virtual void Guard(WId window, const QRect& place, const std::function<void()>& changed) const = 0;
    /// The window is the program's own again. Harmless for one that is not guarded.
    virtual void Unguard(WId window) const = 0;

    /// The window as it is; nothing when it is not there any more. The place is invalid where the system
    /// cannot tell.
    virtual std::optional<Facts> FactsOf(WId window) const = 0;

    /// Makes the window what a cover must be: shown, enabled, whole, exactly at `place`, and topmost or, when
    /// `above` is not 0, directly below that topmost window.
    virtual void Restore(WId window, const QRect& place, WId above = 0) const = 0;

    /// Gives the window the foreground and the keyboard's focus, and waits for no other program meanwhile.
    virtual void Activate(QWidget& window) const = 0;

    static const SystemWindows& Native();
};
