#include "platform/system/x11/X11ShownWindows.h"

#include "platform/system/x11/X11Facts.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <glog/logging.h>
#include <utility>

namespace {

constexpr qint64 SliceMs = 8;

} // namespace

X11ShownWindows::X11ShownWindows(std::function<void(WId)> shown)
    : m_shown(std::move(shown)), m_server(xcb_connect(nullptr, nullptr)) {
    if (!X11Connection::Get() || xcb_connection_has_error(m_server))
        return;
    m_notifier =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_server), QSocketNotifier::Read, nullptr);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { ReadEvents(); });
    BeginWithWindowsThere();
}

X11ShownWindows::~X11ShownWindows() {
    m_notifier.reset();
    xcb_disconnect(m_server);
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
    // What came while the server answered waits in the connection, and the notifier does not see it.
    QTimer::singleShot(0, m_notifier.get(), [this] { ReadEvents(); });
}

void X11ShownWindows::Listen(xcb_window_t window) {
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_VISIBILITY_CHANGE;
    xcb_change_window_attributes(m_server, window, XCB_CW_EVENT_MASK, &events);
}

// In slices, so that a burst of windows leaves room for painting and input.
void X11ShownWindows::ReadEvents() {
    QElapsedTimer clock;
    clock.start();
    while (const auto event = Own(xcb_poll_for_event(m_server))) {
        Handle(*event);
        if (clock.elapsed() >= SliceMs) {
            QTimer::singleShot(0, m_notifier.get(), [this] { ReadEvents(); });
            break;
        }
    }
    xcb_flush(m_server);
    if (xcb_connection_has_error(m_server)) {
        LOG(ERROR) << "X11ShownWindows::ReadEvents the server has ended the connection";
        m_notifier->setEnabled(false);
    }
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
