#include "platform/system/SystemInput.h"

#include <windows.h>

#include <glog/logging.h>
#include <utility>

namespace {

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

class WindowsInput final : public SystemInput {
public:
    qint64 MillisecondsSinceInput() const override {
        LASTINPUTINFO input{sizeof input, 0};
        if (!GetLastInputInfo(&input))
            return -1;
        // Both are counts of milliseconds that wrap after 49 days; so does their difference.
        return static_cast<DWORD>(GetTickCount() - input.dwTime);
    }

protected:
    void TakeKeyboard(QWindow& window) const override {
        // The hook is made anew each time: Windows silently drops one that has been too slow.
        FreeKeyboard(window);
        m_hook = SetWindowsHookExW(WH_KEYBOARD_LL, SwallowShellKeys, GetModuleHandleW(nullptr), 0);
        if (!m_hook)
            LOG(WARNING) << "WindowsInput::TakeKeyboard error " << GetLastError();
    }

    void FreeKeyboard(QWindow&) const override {
        if (m_hook)
            UnhookWindowsHookEx(std::exchange(m_hook, nullptr));
    }

private:
    mutable HHOOK m_hook = nullptr;
};

} // namespace

const SystemInput& SystemInput::Native() {
    static const WindowsInput input;
    return input;
}
