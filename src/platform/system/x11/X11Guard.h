#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <map>
#include <memory>
#include <xcb/xcb.h>

/// Tells when the server changes a window of this program, whoever asked for it: visibility, place, order,
/// parent, shape. It has a connection of its own, which brings nothing but these events. GUI thread.
class X11Guard : public QObject {
public:
    /// The process's guard. Null when the server cannot be reached.
    static X11Guard* Get();
    ~X11Guard() override;

    void Watch(xcb_window_t window, const std::function<void()>& changed);
    void Forget(xcb_window_t window);
    bool IsWatched(xcb_window_t window) const { return m_watched.count(window) > 0; }

private:
    X11Guard();
    void ReadEvents();
    xcb_window_t WindowOf(const xcb_generic_event_t& event) const;

    xcb_connection_t* m_server;
    std::uint8_t m_firstShapeEvent = 0;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::map<xcb_window_t, std::function<void()>> m_watched;
};
