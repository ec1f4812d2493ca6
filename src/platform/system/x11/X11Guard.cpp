#include "platform/system/x11/X11Guard.h"

#include "platform/system/x11/X11Connection.h"

#include <glog/logging.h>
#include <set>
#include <xcb/shape.h>

X11Guard* X11Guard::Get() {
    if (!X11Connection::Get())
        return nullptr;
    static X11Guard guard;
    return xcb_connection_has_error(guard.m_server) ? nullptr : &guard;
}

X11Guard::X11Guard() : m_server(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(m_server))
        return;
    const xcb_query_extension_reply_t* shape = xcb_get_extension_data(m_server, &xcb_shape_id);
    if (shape && shape->present)
        m_firstShapeEvent = shape->first_event;
    m_notifier =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_server), QSocketNotifier::Read, nullptr);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11Guard::ReadEvents);
}

X11Guard::~X11Guard() {
    m_notifier.reset();
    xcb_disconnect(m_server);
}

void X11Guard::Watch(xcb_window_t window, const std::function<void()>& changed) {
    m_watched[window] = changed;
    const std::uint32_t events =
        XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_VISIBILITY_CHANGE | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(m_server, window, XCB_CW_EVENT_MASK, &events);
    xcb_shape_select_input(m_server, window, 1);
    xcb_flush(m_server);
}

void X11Guard::Forget(xcb_window_t window) {
    if (m_watched.erase(window) == 0)
        return;
    const std::uint32_t none = XCB_EVENT_MASK_NO_EVENT;
    xcb_change_window_attributes(m_server, window, XCB_CW_EVENT_MASK, &none);
    xcb_shape_select_input(m_server, window, 0);
    xcb_flush(m_server);
}

// Events at hand are read to the end, and each window is told of once.
void X11Guard::ReadEvents() {
    std::set<xcb_window_t> changed;
    while (const auto event = Own(xcb_poll_for_event(m_server)))
        changed.insert(WindowOf(*event));
    if (xcb_connection_has_error(m_server)) {
        LOG(ERROR) << "X11Guard::ReadEvents the server has ended the connection";
        m_notifier->setEnabled(false);
    }
    for (const xcb_window_t window : changed)
        if (const auto watched = m_watched.find(window); watched != m_watched.end())
            std::function<void()>(watched->second)(); // it may end the watch
}

xcb_window_t X11Guard::WindowOf(const xcb_generic_event_t& event) const {
    const auto type = static_cast<std::uint8_t>(event.response_type & 0x7f);
    if (m_firstShapeEvent != 0 && type == m_firstShapeEvent + XCB_SHAPE_NOTIFY)
        return reinterpret_cast<const xcb_shape_notify_event_t&>(event).affected_window;
    switch (type) {
    case XCB_VISIBILITY_NOTIFY:
        return reinterpret_cast<const xcb_visibility_notify_event_t&>(event).window;
    case XCB_PROPERTY_NOTIFY:
        return reinterpret_cast<const xcb_property_notify_event_t&>(event).window;
    case 0: // an error, of a request about a window that has gone
        return XCB_WINDOW_NONE;
    default: // the structure's events name the window that hears of it first
        return reinterpret_cast<const xcb_unmap_notify_event_t&>(event).event;
    }
}
