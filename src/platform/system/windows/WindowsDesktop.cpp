#include "platform/system/SystemDesktop.h"

#include <windows.h>

namespace {

HWND Handle(WId window) {
    return reinterpret_cast<HWND>(window);
}

class WindowsDesktop final : public SystemDesktop {
public:
    void RaiseTopmost(WId window) const override {
        SetWindowPos(Handle(window), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }

    quintptr HideFromTaskbar(WId window) const override {
        const LONG style = GetWindowLongW(Handle(window), GWL_EXSTYLE);
        SetWindowLongW(Handle(window), GWL_EXSTYLE,
                       (style & ~LONG{WS_EX_APPWINDOW}) | LONG{WS_EX_TOOLWINDOW});
        return static_cast<quintptr>(style);
    }

    void RestoreTaskbarStyle(WId window, quintptr style) const override {
        SetWindowLongW(Handle(window), GWL_EXSTYLE, static_cast<LONG>(style));
    }

    qint64 MillisecondsSinceInput() const override {
        LASTINPUTINFO input{sizeof input, 0};
        if (!GetLastInputInfo(&input))
            return -1;
        // Both are counts of milliseconds that wrap after 49 days; so does their difference.
        return static_cast<DWORD>(GetTickCount() - input.dwTime);
    }
};

} // namespace

const SystemDesktop& SystemDesktop::Native() {
    static const WindowsDesktop desktop;
    return desktop;
}
