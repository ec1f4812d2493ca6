#pragma once

#include <atomic>
#include <functional>
#include <qwindowdefs.h>
#include <set>
#include <xcb/xcb.h>

/// Tells of the windows that other programs show. A window manager may put a program's window into a frame,
/// and then the root tells of the frame alone; so each window is listened to from its creation, when it still
/// lies in the root. It has a connection of its own, which brings nothing but these events, and a thread of
/// its own, because a server that is busy with a thousand windows lets each question about them wait.
class X11ShownWindows {
public:
    /// From now on `shown` is called on the watch's thread. Null when there is no server.
    static X11ShownWindows* Begin(std::function<void(WId window)> shown);
    /// The watch goes as soon as its thread hears of it, which is not waited for.
    void End();

    X11ShownWindows(const X11ShownWindows&) = delete;
    X11ShownWindows& operator=(const X11ShownWindows&) = delete;

private:
    explicit X11ShownWindows(std::function<void(WId window)> shown);
    ~X11ShownWindows();

    void BeginWithWindowsThere();
    void Run();
    void Listen(xcb_window_t window);
    void Handle(const xcb_generic_event_t& event);
    void Tell(xcb_window_t window);

    std::function<void(WId)> m_shown;
    xcb_connection_t* m_server;
    const int m_wakeUp; // a file descriptor
    std::atomic_bool m_hasEnded{false};
    std::set<xcb_window_t> m_showing; // told of, and not hidden since
};
