#include "platform/system/SystemDesktop.h"

#include "platform/system/windows/Handles.h"
#include "platform/system/windows/ShownWindows.h"

namespace {

constexpr int ClassNameSize = 256;
constexpr int ShortTitle = 256;
constexpr int LongestTitle = 65536;

BOOL CALLBACK Append(HWND window, LPARAM windows) {
    reinterpret_cast<std::vector<WId>*>(windows)->push_back(reinterpret_cast<WId>(window));
    return TRUE;
}

class WindowsDesktop final : public SystemDesktop {
public:
    Watch WatchShown(const std::function<void(WId)>& shown) const override {
        return ShownWindows::Watch(shown);
    }

    void EndWatch(Watch watch) const override { ShownWindows::EndWatch(static_cast<HWINEVENTHOOK>(watch)); }

    void Close(WId window) const override { SendMessageW(Handle(window), WM_CLOSE, 0, 0); }

    void RequestClose(WId window) const override { SendNotifyMessageW(Handle(window), WM_CLOSE, 0, 0); }

    WId NextWindow(const char* className, WId after) const override {
        const std::wstring name(className, className + std::char_traits<char>::length(className));
        return reinterpret_cast<WId>(FindWindowExW(nullptr, Handle(after), name.c_str(), nullptr));
    }

    std::optional<std::vector<WId>> TopLevelWindows() const override {
        std::vector<WId> windows;
        if (!EnumWindows(Append, reinterpret_cast<LPARAM>(&windows)))
            return std::nullopt;
        return windows;
    }

    quint32 LastError() const override { return GetLastError(); }

    quint32 ProcessOf(WId window) const override {
        DWORD process = 0;
        GetWindowThreadProcessId(Handle(window), &process);
        return process;
    }

    bool IsOwnRoot(WId window) const override {
        return GetAncestor(Handle(window), GA_ROOT) == Handle(window);
    }

    Style GetWindowStyle(WId window) const override {
        const LONG style = GetWindowLongW(Handle(window), GWL_STYLE);
        return {(style & WS_CHILD) != 0, (style & WS_DISABLED) != 0};
    }

    ExStyle GetWindowExStyle(WId window) const override {
        const LONG style = GetWindowLongW(Handle(window), GWL_EXSTYLE);
        return {(style & WS_EX_NOACTIVATE) != 0, (style & WS_EX_TOOLWINDOW) != 0};
    }

    bool IsDesktopOrShell(WId window) const override {
        return Handle(window) == GetDesktopWindow() || Handle(window) == GetShellWindow();
    }

    std::string ClassOf(WId window) const override {
        char name[ClassNameSize] = {};
        GetClassNameA(Handle(window), name, ClassNameSize);
        return name;
    }

    QString GetWindowClassName(WId window) const override {
        wchar_t name[ClassNameSize];
        return QString::fromWCharArray(name, GetClassNameW(Handle(window), name, ClassNameSize));
    }

    /// Without a message to the window, whose program may hang.
    QString GetWindowTitle(WId window) const override {
        for (std::vector<wchar_t> title(ShortTitle);; title.resize(title.size() * 2)) {
            const int size = static_cast<int>(title.size());
            const int length = InternalGetWindowText(Handle(window), title.data(), size);
            if (length < size - 1 || size >= LongestTitle)
                return QString::fromWCharArray(title.data(), length);
        }
    }

    std::optional<QRect> GetWindowGeometry(WId window) const override {
        RECT place{};
        if (!GetWindowRect(Handle(window), &place))
            return std::nullopt;
        return ToRect(place);
    }

    bool IsCloaked(WId window) const override { return IsWindowCloaked(Handle(window)); }

    bool IsVisible(WId window) const override { return IsWindowVisible(Handle(window)) != FALSE; }

    bool IsEnabled(WId window) const override { return IsWindowEnabled(Handle(window)) != FALSE; }
};

} // namespace

const SystemDesktop& SystemDesktop::Native() {
    static const WindowsDesktop desktop;
    return desktop;
}
