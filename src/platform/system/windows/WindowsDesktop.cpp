#include "platform/system/SystemDesktop.h"

#include <windows.h>

#include <QWidget>
#include <QtPlatformHeaders/QWindowsWindowFunctions>
#include <glog/logging.h>
#include <utility>

namespace {

HWND Handle(WId window) {
    return reinterpret_cast<HWND>(window);
}

bool IsDown(int key) {
    return GetAsyncKeyState(key) < 0;
}

/// What the shell acts on before any window sees it: the Windows keys and all that is pressed with them, the
/// combinations that switch windows or open menus, and the keys that start programs.
bool IsForShell(const KBDLLHOOKSTRUCT& key) {
    const bool alt = key.flags & LLKHF_ALTDOWN;
    switch (key.vkCode) {
    case VK_LWIN:
    case VK_RWIN:
        return true;
    case VK_TAB:
    case VK_SPACE:
        return alt;
    case VK_ESCAPE:
        return alt || IsDown(VK_CONTROL);
    default:
        return (key.vkCode >= VK_BROWSER_BACK && key.vkCode <= VK_BROWSER_HOME) ||
               (key.vkCode >= VK_LAUNCH_MAIL && key.vkCode <= VK_LAUNCH_APP2) || IsDown(VK_LWIN) ||
               IsDown(VK_RWIN);
    }
}

/// Only presses are swallowed: a key that was held down before would otherwise never come up.
LRESULT CALLBACK SwallowShellKeys(int code, WPARAM message, LPARAM data) {
    const bool pressed = message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
    if (code == HC_ACTION && pressed && IsForShell(*reinterpret_cast<const KBDLLHOOKSTRUCT*>(data)))
        return 1;
    return CallNextHookEx(nullptr, code, message, data);
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

    void HoldKeyboard(QWindow&, bool hold) const override {
        // Asked again, the hook is made anew: Windows silently drops one that has been too slow.
        if (m_keyboardHook)
            UnhookWindowsHookEx(std::exchange(m_keyboardHook, nullptr));
        if (!hold)
            return;
        m_keyboardHook = SetWindowsHookExW(WH_KEYBOARD_LL, SwallowShellKeys, GetModuleHandleW(nullptr), 0);
        if (!m_keyboardHook)
            LOG(WARNING) << "WindowsDesktop::HoldKeyboard error " << GetLastError();
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

private:
    mutable HHOOK m_keyboardHook = nullptr;
};

} // namespace

const SystemDesktop& SystemDesktop::Native() {
    static const WindowsDesktop desktop;
    return desktop;
}
