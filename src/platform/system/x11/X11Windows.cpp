#include "platform/system/SystemWindows.h"

#include "platform/system/x11/X11Connection.h"

#include <QWidget>
#include <array>

namespace {

class X11Windows final : public SystemWindows {
public:
    /// The window manager decides; a request to activate is all there is.
    void AllowTakingForeground() const override {}

    /// A window that was never mapped is on no task bar. Minimising it first would make it come up as an
    /// icon, whenever it is shown.
    void CreateHidden(QWidget& window) const override { window.winId(); }

    void RaiseTopmost(WId window) const override {
        const std::array<std::uint32_t, 1> values{XCB_STACK_MODE_ABOVE};
        Configure(window, XCB_CONFIG_WINDOW_STACK_MODE, values.data());
    }

    void PlaceBelow(WId window, WId above) const override {
        const std::array<std::uint32_t, 2> values{static_cast<xcb_window_t>(above), XCB_STACK_MODE_BELOW};
        Configure(window, XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, values.data());
    }

private:
    static void Configure(WId window, std::uint16_t what, const std::uint32_t* values) {
        const X11Connection* x11 = X11Connection::Get();
        if (!x11)
            return;
        xcb_configure_window(x11->Server(), static_cast<xcb_window_t>(window), what, values);
        xcb_flush(x11->Server());
    }
};

} // namespace

const SystemWindows& SystemWindows::Native() {
    static const X11Windows windows;
    return windows;
}
