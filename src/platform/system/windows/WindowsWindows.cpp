#include "platform/system/SystemWindows.h"

#include <windows.h>

#include <QWidget>
#include <QtPlatformHeaders/QWindowsWindowFunctions>

namespace {

constexpr UINT OrderOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

HWND Handle(WId window) {
    return reinterpret_cast<HWND>(window);
}

class WindowsWindows final : public SystemWindows {
public:
    void AllowTakingForeground() const override {
        QWindowsWindowFunctions::setWindowActivationBehavior(QWindowsWindowFunctions::AlwaysActivateWindow);
    }

    void CreateHidden(QWidget& window) const override {
        const HWND handle = Handle(window.winId());
        const LONG style = GetWindowLongW(handle, GWL_EXSTYLE);
        SetWindowLongW(handle, GWL_EXSTYLE, (style & ~LONG{WS_EX_APPWINDOW}) | LONG{WS_EX_TOOLWINDOW});
        window.showMinimized();
        window.hide();
        SetWindowLongW(handle, GWL_EXSTYLE, style);
    }

    void RaiseTopmost(WId window) const override {
        SetWindowPos(Handle(window), HWND_TOPMOST, 0, 0, 0, 0, OrderOnly);
    }

    void PlaceBelow(WId window, WId above) const override {
        // A window that is not topmost would end below all that are.
        if (!(GetWindowLongW(Handle(window), GWL_EXSTYLE) & WS_EX_TOPMOST))
            RaiseTopmost(window);
        SetWindowPos(Handle(window), Handle(above), 0, 0, 0, 0, OrderOnly);
    }
};

} // namespace

const SystemWindows& SystemWindows::Native() {
    static const WindowsWindows windows;
    return windows;
}
