#include "platform/system/SystemDesktop.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>
#include <cstdlib>
#include <memory>
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

    /// Qt's OpenGL support costs a third of the start and half of the memory; widgets draw without it.
    void PrepareApplication() const override {
        if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
            qputenv("QT_XCB_GL_INTEGRATION", "none");
    }

    /// The window manager decides; a request to activate is all there is.
    void AllowTakingForeground() const override {}

    void RaiseTopmost(WId window) const override {
        if (!Connect())
            return;
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(m_connection, static_cast<xcb_window_t>(window), XCB_CONFIG_WINDOW_STACK_MODE,
                             &above);
        xcb_flush(m_connection);
    }

    void HoldKeyboard(QWindow& window, bool hold) const override { window.setKeyboardGrabEnabled(hold); }

    /// A window that was never mapped is on no task bar. Minimising it first would make it come up as an
    /// icon, whenever it is shown.
    void CreateHidden(QWidget& window) const override { window.winId(); }

    qint64 MillisecondsSinceInput() const override {
        if (!Connect())
            return -1;
        const auto info = Own(xcb_screensaver_query_info_reply(
            m_connection, xcb_screensaver_query_info(m_connection, m_root), nullptr));
        return info ? qint64{info->ms_since_user_input} : -1;
    }

    std::optional<bool> IsTaskbarDark() const override { return std::nullopt; }

private:
    /// The back end's own connection: asking must not disturb the order of Qt's requests.
    bool Connect() const {
        if (!m_connection && QGuiApplication::platformName() == QLatin1String("xcb")) {
            m_connection = xcb_connect(nullptr, nullptr);
            m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        }
        return m_connection && !xcb_connection_has_error(m_connection);
    }

    mutable xcb_connection_t* m_connection = nullptr;
    mutable xcb_window_t m_root = 0;
};

} // namespace

const SystemDesktop& SystemDesktop::Native() {
    static const X11Desktop desktop;
    return desktop;
}
