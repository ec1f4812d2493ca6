#pragma once

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

/// The back end's own connection to the X server: asking must not disturb the order of Qt's requests.
/// Any thread.
class X11Connection {
public:
    /// The process's connection, opened at the first call, once the application object is there. Null when
    /// the program does not run on X11, or when the server has gone.
    static const X11Connection* Get();

    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;

    xcb_connection_t* Server() const { return m_server; }
    xcb_window_t Root() const { return m_root; }

private:
    X11Connection();

    xcb_connection_t* m_server;
    xcb_window_t m_root;
};

template <class T>
using X11Reply = std::unique_ptr<T, decltype(&std::free)>;

/// Takes over a reply of the server; it may be null.
template <class T>
X11Reply<T> Own(T* reply) {
    return X11Reply<T>(reply, &std::free);
}
