#include "platform/system/x11/X11ShownWindows.h"

#include "platform/system/x11/X11Facts.h"

#include <QCoreApplication>
#include <glog/logging.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <thread>
#include <unistd.h>
#include <utility>

X11ShownWindows* X11ShownWindows::Begin(std::function<void(WId)> shown) {
    auto* watch = new X11ShownWindows(std::move(shown));
    if (!X11Connection::Get() || xcb_connection_has_error(watch->m_server)) {
        delete watch;
        return nullptr;
    }
    watch->BeginWithWindowsThere();
    std::thread([watch] {
        watch->Run();
        delete watch;
    }).detach();
    return watch;
}

void X11ShownWindows::End() {
    m_hasEnded = true;
    eventfd_write(m_wakeUp, 1);
}

X11ShownWindows::X11ShownWindows(std::function<void(WId)> shown)
    : m_shown(std::move(shown)), m_server(xcb_connect(nullptr, nullptr)), m_wakeUp(eventfd(0, EFD_CLOEXEC)) {}

X11ShownWindows::~X11ShownWindows() {
    xcb_disconnect(m_server);
    close(m_wakeUp);
}

void X11ShownWindows::BeginWithWindowsThere() {
    const X11Connection& x11 = *X11Connection::Get();
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_server, x11.Root(), XCB_CW_EVENT_MASK, &events);
    const auto tree = Own(xcb_query_tree_reply(m_server, xcb_query_tree(m_server, x11.Root()), nullptr));
    const int count = tree ? xcb_query_tree_children_length(tree.get()) : 0;
    for (int i = 0; i < count; ++i) {
        const xcb_window_t window = ClientIn(x11, xcb_query_tree_children(tree.get())[i]);
        Listen(window);
        if (IsViewable(x11, window))
            m_showing.insert(window);
    }
}

void X11ShownWindows::Listen(xcb_window_t window) {
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_VISIBILITY_CHANGE;
    xcb_change_window_attributes(m_server, window, XCB_CW_EVENT_MASK, &events);
}

void X11ShownWindows::Run() {
    pollfd sources[] = {{xcb_get_file_descriptor(m_server), POLLIN, 0}, {m_wakeUp, POLLIN, 0}};
    while (!m_hasEnded) {
        if (const auto event = Own(xcb_poll_for_event(m_server))) {
            Handle(*event);
            continue;
        }
        xcb_flush(m_server);
        if (sources[0].fd >= 0 && xcb_connection_has_error(m_server)) {
            LOG(ERROR) << "X11ShownWindows::Run the server has ended the connection";
            sources[0].fd = -1; // nothing comes from there any more
        }
        poll(sources, 2, -1);
    }
    eventfd_t calls = 0;
    eventfd_read(m_wakeUp, &calls); // End is through with this object
}

// A window that is mapped may still lie in a frame that is not: it is seen when its visibility is told of.
void X11ShownWindows::Handle(const xcb_generic_event_t& event) {
    switch (event.response_type & 0x7f) {
    case XCB_CREATE_NOTIFY: {
        const xcb_window_t window = reinterpret_cast<const xcb_create_notify_event_t&>(event).window;
        Listen(window);
        // It may have been shown before anybody listened.
        const auto attributes = Own(
            xcb_get_window_attributes_reply(m_server, xcb_get_window_attributes(m_server, window), nullptr));
        if (attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE)
            Tell(window);
        break;
    }
    case XCB_VISIBILITY_NOTIFY:
        Tell(reinterpret_cast<const xcb_visibility_notify_event_t&>(event).window);
        break;
    case XCB_UNMAP_NOTIFY:
        m_showing.erase(reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window);
        break;
    case XCB_DESTROY_NOTIFY:
        m_showing.erase(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
        break;
    default:
        break;
    }
}

void X11ShownWindows::Tell(xcb_window_t window) {
    const X11Connection& x11 = *X11Connection::Get();
    if (m_showing.insert(window).second && !IsOfWindowManager(x11, window) &&
        ProcessOf(x11, window) != static_cast<quint32>(QCoreApplication::applicationPid()))
        m_shown(window);
}
