#include "platform/system/x11/X11Connection.h"

#include <QGuiApplication>

const X11Connection* X11Connection::Get() {
    // Both outlive the application object, because another thread may ask until the process has ended.
    static const bool isX11 = QGuiApplication::platformName() == QLatin1String("xcb");
    if (!isX11)
        return nullptr;
    static const X11Connection& connection = *new X11Connection;
    return xcb_connection_has_error(connection.m_server) ? nullptr : &connection;
}

X11Connection::X11Connection()
    : m_server(xcb_connect(nullptr, nullptr)),
      m_root(xcb_connection_has_error(m_server)
                 ? 0
                 : xcb_setup_roots_iterator(xcb_get_setup(m_server)).data->root) {}
