#include "platform/system/SystemDesktop.h"

#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>
#include <xcb/screensaver.h>
#include <xcb/xcb.h>

namespace {

template <class T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

template <class T>
Reply<T> Own(T* reply) {
    return Reply<T>(reply, &std::free);
}

class X11Desktop final : public SystemDesktop {
public:
    ~X11Desktop() override {
        if (m_connection)
            xcb_disconnect(m_connection);
    }

    void RaiseTopmost(WId window) const override {
        if (!Connect())
            return;
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(m_connection, static_cast<xcb_window_t>(window), XCB_CONFIG_WINDOW_STACK_MODE,
                             &above);
        xcb_flush(m_connection);
    }

    quintptr HideFromTaskbar(WId window) const override {
        if (!Connect())
            return 0;
        std::vector<xcb_atom_t> states = States(window);
        const bool wasHidden = std::count(states.begin(), states.end(), SkipTaskbar()) > 0;
        if (!wasHidden) {
            states.push_back(SkipTaskbar());
            SetStates(window, states);
        }
        return wasHidden;
    }

    void RestoreTaskbarStyle(WId window, quintptr wasHidden) const override {
        if (wasHidden || !Connect())
            return;
        std::vector<xcb_atom_t> states = States(window);
        states.erase(std::remove(states.begin(), states.end(), SkipTaskbar()), states.end());
        SetStates(window, states);
    }

    qint64 MillisecondsSinceInput() const override {
        if (!Connect())
            return -1;
        const auto info = Own(xcb_screensaver_query_info_reply(
            m_connection, xcb_screensaver_query_info(m_connection, m_root), nullptr));
        return info ? qint64{info->ms_since_user_input} : -1;
    }

private:
    /// The back end's own connection: asking must not disturb the order of Qt's requests.
    bool Connect() const {
        if (!m_connection && QGuiApplication::platformName() == QLatin1String("xcb")) {
            m_connection = xcb_connect(nullptr, nullptr);
            m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        }
        return m_connection && !xcb_connection_has_error(m_connection);
    }

    xcb_atom_t Atom(const char* name) const {
        const auto atom = Own(xcb_intern_atom_reply(
            m_connection,
            xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name), nullptr));
        return atom ? atom->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }
    xcb_atom_t SkipTaskbar() const { return Atom("_NET_WM_STATE_SKIP_TASKBAR"); }

    std::vector<xcb_atom_t> States(WId window) const {
        const auto property =
            Own(xcb_get_property_reply(m_connection,
                                       xcb_get_property(m_connection, 0, static_cast<xcb_window_t>(window),
                                                        Atom("_NET_WM_STATE"), XCB_ATOM_ATOM, 0, 64),
                                       nullptr));
        if (!property)
            return {};
        const auto* atoms = static_cast<const xcb_atom_t*>(xcb_get_property_value(property.get()));
        return {atoms, atoms + static_cast<std::size_t>(xcb_get_property_value_length(property.get())) /
                                   sizeof *atoms};
    }

    void SetStates(WId window, const std::vector<xcb_atom_t>& states) const {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window),
                            Atom("_NET_WM_STATE"), XCB_ATOM_ATOM, 32,
                            static_cast<std::uint32_t>(states.size()), states.data());
        xcb_flush(m_connection);
    }

    mutable xcb_connection_t* m_connection = nullptr;
    mutable xcb_window_t m_root = 0;
};

} // namespace

const SystemDesktop& SystemDesktop::Native() {
    static const X11Desktop desktop;
    return desktop;
}
