#pragma once

#include "platform/system/x11/X11Connection.h"

#include <QByteArray>
#include <QRect>
#include <QString>

// What the X server tells of a window. Any thread; each asks the server and waits for its answer.

xcb_atom_t Atom(const X11Connection& x11, const char* name);

/// On the whole desktop; null when the window is not there.
QRect PlaceOf(const X11Connection& x11, xcb_window_t window);

/// Whether it and all that it lies in are shown.
bool IsViewable(const X11Connection& x11, xcb_window_t window);

/// A property of any kind, with a null-terminated name; null when the window does not have it.
struct X11Property {
    xcb_atom_t type = XCB_ATOM_NONE;
    QByteArray bytes;

    bool IsThere() const { return type != XCB_ATOM_NONE; }
    /// The 32-bit number at `index`; 0 when it has none there.
    std::uint32_t Number(int index = 0) const;
};
X11Property PropertyOf(const X11Connection& x11, xcb_window_t window, const char* name);

/// The text of a property that is text.
QString TextOf(const X11Connection& x11, const X11Property& property);

/// The process that has made the window; 0 when it runs elsewhere.
quint32 ProcessOf(const X11Connection& x11, xcb_window_t window);

/// Whether the window manager has made the window, such as a frame around a program's window.
bool IsOfWindowManager(const X11Connection& x11, xcb_window_t window);

/// The program's window in the frame `window`, or that itself.
xcb_window_t ClientIn(const X11Connection& x11, xcb_window_t window);
