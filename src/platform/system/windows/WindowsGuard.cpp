#include "platform/system/windows/WindowsGuard.h"

#include <QCoreApplication>
#include <glog/logging.h>
#include <iterator>
#include <tpcshrd.h>
#include <utility>

namespace {

constexpr LRESULT NoPenGestures = TABLET_DISABLE_PRESSANDHOLD | TABLET_DISABLE_PENTAPFEEDBACK |
                                  TABLET_DISABLE_PENBARRELFEEDBACK | TABLET_DISABLE_FLICKS;

bool IsOwnTopmost(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId() && (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST);
}

void KeepPosition(WINDOWPOS& position, const QRect& place) {
    position.flags &= ~UINT{SWP_HIDEWINDOW};
    position.x = place.x();
    position.y = place.y();
    position.cx = place.width();
    position.cy = place.height();
    if (position.hwndInsertAfter != HWND_TOPMOST && !IsOwnTopmost(position.hwndInsertAfter))
        position.flags |= SWP_NOZORDER;
}

/// Messages after which a window may not be any more what it was.
bool MayHaveChanged(const MSG& message) {
    switch (message.message) {
    case WM_SHOWWINDOW:
    case WM_ENABLE:
        return message.wParam == FALSE;
    case WM_SIZE:
        return message.wParam == SIZE_MINIMIZED;
    case WM_WINDOWPOSCHANGED:
    case WM_STYLECHANGED:
    case WM_CLOSE:
    case WM_NCDESTROY:
        return true;
    default:
        return false;
    }
}

} // namespace

WindowsGuard& WindowsGuard::Instance() {
    static WindowsGuard guard;
    return guard;
}

void WindowsGuard::Guard(HWND window, const QRect& place, const std::function<void()>& changed) {
    if (m_windows.empty()) {
        qApp->installNativeEventFilter(this);
        m_hook = SetWindowsHookExW(WH_CBT, RefuseMinMax, nullptr, GetCurrentThreadId());
        LOG_IF(WARNING, !m_hook) << "WindowsGuard::Guard no hook: error " << GetLastError();
    }
    m_windows[window] = {place, changed};
}

void WindowsGuard::Unguard(HWND window) {
    if (!m_windows.erase(window) || !m_windows.empty() || !qApp)
        return;
    qApp->removeNativeEventFilter(this);
    UnhookWindowsHookEx(std::exchange(m_hook, nullptr));
}

// Where this thread is asked before anything has happened. Under Wine it is, and there a window that was
// minimised and restored at once may stay away, because the window manager hears of both too late.
LRESULT CALLBACK WindowsGuard::RefuseMinMax(int code, WPARAM window, LPARAM data) {
    if (code == HCBT_MINMAX && Instance().IsGuarded(reinterpret_cast<HWND>(window)))
        return TRUE;
    return CallNextHookEx(nullptr, code, window, data);
}

bool WindowsGuard::nativeEventFilter(const QByteArray&, void* data, long* result) {
    const MSG& message = *static_cast<const MSG*>(data);
    LRESULT answer = 0;
    bool isRefused = false;
    if (message.message == WM_ENDSESSION) {
        // Qt ends the program on it, whichever window it comes to.
        isRefused = message.wParam && !GetSystemMetrics(SM_SHUTTINGDOWN);
    } else if (message.message == WM_ERASEBKGND && m_windows.count(message.hwnd) > 0) {
        Erase(message.hwnd, reinterpret_cast<HDC>(message.wParam));
        answer = TRUE;
        isRefused = true;
    } else if (const auto window = m_windows.find(message.hwnd);
               m_ownActs == 0 && window != m_windows.end()) {
        isRefused = Refuses(message, window->second.place, answer);
        if (MayHaveChanged(message))
            Tell(message.hwnd);
    }
    if (isRefused && result) // which posted messages have none of
        *result = static_cast<long>(answer);
    return isRefused;
}

bool WindowsGuard::Refuses(const MSG& message, const QRect& place, LRESULT& answer) const {
    switch (message.message) {
    case WM_WINDOWPOSCHANGING:
        KeepPosition(*reinterpret_cast<WINDOWPOS*>(message.lParam), place);
        return true;
    case WM_STYLECHANGING: {
        auto& style = *reinterpret_cast<STYLESTRUCT*>(message.lParam);
        style.styleNew = style.styleOld;
        return true;
    }
    case WM_SYSCOMMAND: // whose low four bits are the system's own
        return (message.wParam & 0xFFF0) != SC_MONITORPOWER;
    case WM_SHOWWINDOW: // which Qt, too, would believe, and paint no more
        return message.wParam == FALSE;
    case WM_SIZE:
        return message.wParam == SIZE_MINIMIZED;
    case WM_CLOSE:
    case WM_SETREDRAW: // which takes the window's visibility without any other word
        return true;
    case WM_TABLET_QUERYSYSTEMGESTURESTATUS:
        answer = NoPenGestures;
        return true;
    default:
        return false;
    }
}

void WindowsGuard::SetBackground(HWND window, COLORREF color) {
    for (auto known = m_backgrounds.begin(); known != m_backgrounds.end();)
        known = IsWindow(known->first) ? std::next(known) : m_backgrounds.erase(known);
    m_backgrounds[window] = color;
}

void WindowsGuard::Erase(HWND window, HDC canvas) const {
    RECT whole{};
    const auto background = m_backgrounds.find(window);
    if (background == m_backgrounds.end() || !GetClientRect(window, &whole))
        return;
    SetDCBrushColor(canvas, background->second);
    FillRect(canvas, &whole, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void WindowsGuard::Tell(HWND window) {
    if (std::exchange(m_windows[window].isToBeTold, true))
        return;
    QMetaObject::invokeMethod(
        qApp,
        [this, window] {
            const auto guarded = m_windows.find(window);
            if (guarded == m_windows.end())
                return;
            guarded->second.isToBeTold = false;
            const auto changed = guarded->second.changed; // which may end the guard
            changed();
        },
        Qt::QueuedConnection);
}
