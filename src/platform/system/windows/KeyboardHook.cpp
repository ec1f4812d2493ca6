#include "platform/system/windows/KeyboardHook.h"

#include "platform/system/windows/AccessList.h"
#include "platform/system/windows/KeyFilter.h"

#include <windows.h>

#include <future>
#include <glog/logging.h>

namespace {

constexpr UINT RenewMs = 1000;
constexpr UINT RenewMessage = WM_APP;

thread_local KeyFilter keyFilter; // the hook's procedure runs on the hook's thread

bool IsDown(int key) {
    return GetAsyncKeyState(key) < 0;
}

LRESULT CALLBACK FilterKey(int code, WPARAM message, LPARAM data) {
    if (code == HC_ACTION) {
        const auto& key = *reinterpret_cast<const KBDLLHOOKSTRUCT*>(data);
        const bool pressed = message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
        const bool modified = (key.flags & LLKHF_ALTDOWN) || IsDown(VK_CONTROL) || IsDown(VK_MENU) ||
                              IsDown(VK_LWIN) || IsDown(VK_RWIN);
        if (!keyFilter.Passes(key.vkCode, pressed, modified))
            return 1;
    }
    return CallNextHookEx(nullptr, code, message, data);
}

/// The secure desktop shows its keys to nobody else, so what was held down there is not known.
void CALLBACK ForgetModifiers(HWINEVENTHOOK, DWORD, HWND, LONG, LONG, DWORD, DWORD) {
    keyFilter.ForgetModifiers();
}

/// Windows silently drops a hook that has been too slow, so it is made anew now and then; the new one
/// stands before the old one goes.
void RenewHook(HHOOK& hook) {
    const HHOOK fresh = SetWindowsHookExW(WH_KEYBOARD_LL, FilterKey, GetModuleHandleW(nullptr), 0);
    if (!fresh) {
        LOG_FIRST_N(WARNING, 1) << "KeyboardHook error " << GetLastError();
        return;
    }
    // One that Windows has dropped may have missed that a modifier came up.
    if (hook && !UnhookWindowsHookEx(hook))
        keyFilter.ForgetModifiers();
    hook = fresh;
}

void FilterKeys(std::promise<DWORD> threadId, const std::atomic<bool>& stopping) {
    ProtectThisThread();
    HHOOK hook = nullptr;
    RenewHook(hook);
    const HWINEVENTHOOK desktop = SetWinEventHook(EVENT_SYSTEM_DESKTOPSWITCH, EVENT_SYSTEM_DESKTOPSWITCH,
                                                  nullptr, ForgetModifiers, 0, 0, WINEVENT_OUTOFCONTEXT);
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);            // from now on the thread can be posted to
    const UINT_PTR timer = SetTimer(nullptr, 0, RenewMs, nullptr); // whatever the rest of the program does
    threadId.set_value(GetCurrentThreadId());
    // WM_QUIT, which any program may post, ends nothing here.
    while (GetMessageW(&message, nullptr, 0, 0) >= 0 && !stopping) {
        if (message.message == RenewMessage || message.message == WM_TIMER)
            RenewHook(hook);
        else
            DispatchMessageW(&message);
    }
    KillTimer(nullptr, timer);
    UnhookWinEvent(desktop);
    UnhookWindowsHookEx(hook);
}

} // namespace

void KeyboardHook::Start() {
    if (m_thread.joinable()) {
        PostThreadMessageW(m_threadId, RenewMessage, 0, 0);
        return;
    }
    m_stopping = false;
    std::promise<DWORD> threadId;
    std::future<DWORD> started = threadId.get_future();
    m_thread = std::thread(FilterKeys, std::move(threadId), std::cref(m_stopping));
    m_threadId = started.get();
}

void KeyboardHook::Stop() {
    if (!m_thread.joinable())
        return;
    m_stopping = true;
    PostThreadMessageW(m_threadId, WM_NULL, 0, 0);
    m_thread.join();
}
