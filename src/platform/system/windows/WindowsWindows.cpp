#include "platform/system/SystemWindows.h"

#include "platform/system/windows/Handles.h"
#include "platform/system/windows/WindowsGuard.h"

#include <QWidget>
#include <QtPlatformHeaders/QWindowsWindowFunctions>
#include <dwmapi.h>
#include <glog/logging.h>
#include <objbase.h>
#include <propsys.h>
#include <shellapi.h>

namespace {

constexpr UINT OrderOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
constexpr LONG SeeThrough = WS_EX_LAYERED | WS_EX_TRANSPARENT;
constexpr UINT AnswerMs = 100; // for the foreground's program

constexpr PROPERTYKEY DisableTouchWhenFullscreen{
    {0x32CE38B2, 0x2C9A, 0x41B1, {0x9B, 0xC5, 0xB3, 0x78, 0x43, 0x94, 0xAA, 0x44}}, 2};

bool IsOwnedByOther(HWND window) {
    DWORD process = GetCurrentProcessId();
    if (const HWND owner = GetWindow(window, GW_OWNER))
        GetWindowThreadProcessId(owner, &process);
    return process != GetCurrentProcessId();
}

HRESULT IgnoreEdgeGestures(HWND window) {
    IPropertyStore* store = nullptr;
    HRESULT result =
        SHGetPropertyStoreForWindow(window, IID_IPropertyStore, reinterpret_cast<void**>(&store));
    if (FAILED(result))
        return result;
    PROPVARIANT yes{};
    yes.vt = VT_BOOL;
    yes.boolVal = VARIANT_TRUE;
    result = store->SetValue(DisableTouchWhenFullscreen, yes);
    store->Release();
    return result;
}

/// Without attaching to the foreground's thread, which may not run on: the program that had the last input,
/// even one of its own that does nothing, may take the foreground.
bool TakeForegroundAlone(HWND window) {
    if (GetForegroundWindow() != window) {
        INPUT nothing{};
        nothing.type = INPUT_MOUSE;
        SendInput(1, &nothing, sizeof nothing);
        SetForegroundWindow(window);
    }
    SetFocus(window);
    return GetForegroundWindow() == window;
}

bool Answers(HWND window) {
    DWORD_PTR answer = 0;
    return !window ||
           SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG | SMTO_BLOCK, AnswerMs, &answer);
}

BOOL CALLBACK CollectPlace(HMONITOR monitor, HDC, LPRECT, LPARAM places) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (GetMonitorInfoW(monitor, &info)) {
        auto& all = *reinterpret_cast<QVector<QRect>*>(places);
        all.insert(info.dwFlags & MONITORINFOF_PRIMARY ? 0 : all.size(), ToRect(info.rcMonitor));
    }
    return TRUE;
}

class WindowsWindows final : public SystemWindows {
public:
    void AllowTakingForeground() const override {
        QWindowsWindowFunctions::setWindowActivationBehavior(QWindowsWindowFunctions::AlwaysActivateWindow);
    }

    void GiveForegroundTo(quint32 process) const override { AllowSetForegroundWindow(process); }

    void CreateHidden(QWidget& window) const override {
        const HWND handle = Handle(window.winId());
        const LONG style = GetWindowLongW(handle, GWL_EXSTYLE);
        SetWindowLongW(handle, GWL_EXSTYLE, (style & ~LONG{WS_EX_APPWINDOW}) | LONG{WS_EX_TOOLWINDOW});
        window.showMinimized();
        window.hide();
        SetWindowLongW(handle, GWL_EXSTYLE, style);
    }

    void RaiseTopmost(WId window) const override {
        const WindowsGuard::OwnAct act;
        SetWindowPos(Handle(window), HWND_TOPMOST, 0, 0, 0, 0, OrderOnly);
    }

    void PlaceBelow(WId window, WId above) const override {
        // A window that is not topmost would end below all that are.
        if (!(GetWindowLongW(Handle(window), GWL_EXSTYLE) & WS_EX_TOPMOST))
            RaiseTopmost(window);
        const WindowsGuard::OwnAct act;
        SetWindowPos(Handle(window), Handle(above), 0, 0, 0, 0, OrderOnly);
    }

    QVector<QRect> ScreenPlaces() const override {
        QVector<QRect> places;
        EnumDisplayMonitors(nullptr, nullptr, CollectPlace, reinterpret_cast<LPARAM>(&places));
        if (places.isEmpty())
            places.append({0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
        return places;
    }

    bool CanCover() const override { return true; }

    void PrepareCover(QWidget& window, const QColor& background) const override {
        const HWND handle = Handle(window.winId());
        WindowsGuard::Instance().SetBackground(handle,
                                               RGB(background.red(), background.green(), background.blue()));
        // Of a window whose program is busy the system would show a copy that can be moved away.
        DisableProcessWindowsGhosting();
        constexpr BOOL yes = TRUE;
        const HRESULT gestures = IgnoreEdgeGestures(handle);
        const HRESULT peek = DwmSetWindowAttribute(handle, DWMWA_EXCLUDED_FROM_PEEK, &yes, sizeof yes);
        const HRESULT noPeek = DwmSetWindowAttribute(handle, DWMWA_DISALLOW_PEEK, &yes, sizeof yes);
        if (FAILED(gestures) || FAILED(peek) || FAILED(noPeek)) {
            LOG_FIRST_N(WARNING, 1) << "WindowsWindows::PrepareCover edge gestures " << gestures << ", Peek "
                                    << peek << ' ' << noPeek;
        }
    }

    void Guard(WId window, const QRect& place, const std::function<void()>& changed) const override {
        WindowsGuard::Instance().Guard(Handle(window), place, changed);
    }

    void Unguard(WId window) const override { WindowsGuard::Instance().Unguard(Handle(window)); }

    std::optional<Facts> FactsOf(WId window) const override {
        const HWND handle = Handle(window);
        RECT place{};
        RECT region{};
        if (!GetWindowRect(handle, &place))
            return std::nullopt;
        const LONG style = GetWindowLongW(handle, GWL_EXSTYLE);
        Facts facts;
        facts.place = ToRect(place);
        facts.shown = IsWindowVisible(handle) && !IsIconic(handle) && !IsWindowCloaked(handle);
        facts.topmost = style & WS_EX_TOPMOST;
        facts.enabled = IsWindowEnabled(handle);
        facts.whole = !(style & SeeThrough) && GetWindowRgnBox(handle, &region) == ERROR;
        facts.onTop = GetAncestor(handle, GA_PARENT) == GetDesktopWindow() && !IsOwnedByOther(handle);
        return facts;
    }

    void Restore(WId window, const QRect& place, WId above) const override {
        const HWND handle = Handle(window);
        const WindowsGuard::OwnAct act;
        if (GetAncestor(handle, GA_PARENT) != GetDesktopWindow())
            SetParent(handle, nullptr);
        if (IsOwnedByOther(handle))
            SetWindowLongPtrW(handle, GWLP_HWNDPARENT, 0);
        RemoveStyle(handle, GWL_STYLE, WS_CHILD);
        RemoveStyle(handle, GWL_EXSTYLE, SeeThrough);
        SetWindowRgn(handle, nullptr, TRUE);
        EnableWindow(handle, TRUE);
        constexpr BOOL no = FALSE;
        if (IsWindowCloaked(handle))
            DwmSetWindowAttribute(handle, DWMWA_CLOAK, &no, sizeof no);
        if (IsIconic(handle))
            ShowWindow(handle, SW_SHOWNOACTIVATE);
        if (above)
            PlaceBelow(window, above);
        else
            RaiseTopmost(window);
        SetWindowPos(handle, nullptr, place.x(), place.y(), place.width(), place.height(),
                     SWP_NOACTIVATE | SWP_NOZORDER | SWP_SHOWWINDOW);
    }

    void Activate(QWidget& window) const override {
        // Qt's way attaches to the foreground's thread and so must not meet one that hangs.
        if (!TakeForegroundAlone(Handle(window.winId())) && Answers(GetForegroundWindow()))
            window.activateWindow();
    }

private:
    static void RemoveStyle(HWND window, int index, LONG style) {
        const LONG now = GetWindowLongW(window, index);
        if (now & style)
            SetWindowLongW(window, index, now & ~style);
    }
};

} // namespace

const SystemWindows& SystemWindows::Native() {
    static const WindowsWindows windows;
    return windows;
}
