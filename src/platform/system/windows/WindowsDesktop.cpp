#include "platform/system/SystemDesktop.h"

#include <windows.h>

#include <QWidget>
#include <QtPlatformHeaders/QWindowsWindowFunctions>

namespace {

HWND Handle(WId window) {
    return reinterpret_cast<HWND>(window);
}

class WindowsDesktop final : public SystemDesktop {
public:
    void PrepareApplication() const override {}

    void AllowTakingForeground() const override {
        QWindowsWindowFunctions::setWindowActivationBehavior(QWindowsWindowFunctions::AlwaysActivateWindow);
    }

    void RaiseTopmost(WId window) const override {
        SetWindowPos(Handle(window), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }

    void CreateHidden(QWidget& window) const override {
        const HWND handle = Handle(window.winId());
        const LONG style = GetWindowLongW(handle, GWL_EXSTYLE);
        SetWindowLongW(handle, GWL_EXSTYLE, (style & ~LONG{WS_EX_APPWINDOW}) | LONG{WS_EX_TOOLWINDOW});
        window.showMinimized();
        window.hide();
        SetWindowLongW(handle, GWL_EXSTYLE, style);
    }

    qint64 MillisecondsSinceInput() const override {
        LASTINPUTINFO input{sizeof input, 0};
        if (!GetLastInputInfo(&input))
            return -1;
        // Both are counts of milliseconds that wrap after 49 days; so does their difference.
        return static_cast<DWORD>(GetTickCount() - input.dwTime);
    }

    std::optional<bool> IsTaskbarDark() const override {
        DWORD light = 1;
        DWORD size = sizeof light;
        RegGetValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                     L"SystemUsesLightTheme", RRF_RT_REG_DWORD, nullptr, &light, &size);
        return light == 0;
    }
};

} // namespace

const SystemDesktop& SystemDesktop::Native() {
    static const WindowsDesktop desktop;
    return desktop;
}
