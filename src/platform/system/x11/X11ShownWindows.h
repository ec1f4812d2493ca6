#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <qwindowdefs.h>
#include <set>
#include <xcb/xcb.h>

/// Tells of the windows that other programs show. A window manager may put a program's window into a frame,
/// and then the root tells of the frame alone; so each window is listened to from its creation, when it still
/// lies in the root. It has a connection of its own, which brings nothing but these events. GUI thread.
class X11ShownWindows {
public:
    explicit X11ShownWindows(std::function<void(WId window)> shown);
    ~X11ShownWindows();
    X11ShownWindows(const X11ShownWindows&) = delete;
    X11ShownWindows& operator=(const X11ShownWindows&) = delete;

    bool IsUsable() const { return m_notifier != nullptr; }

private:
    void BeginWithWindowsThere();
    void Listen(xcb_window_t window);
    void ReadEvents();
    void Handle(const xcb_generic_event_t& event);
    void Tell(xcb_window_t window);

    std::function<void(WId)> m_shown;
    xcb_connection_t* m_server;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::set<xcb_window_t> m_showing; // told of, and not hidden since
};
