// Wine tells nobody that a window is shown. While this runs, it tells in Wine's place, within a twentieth of
// a second, so that pop-ups of any program can be tried out. Those of ryx-popups tell of themselves, and
// would be told of twice.
#include <set>

#include <windows.h>

namespace {

constexpr DWORD LookEveryMs = 50;

BOOL CALLBACK AddVisible(HWND window, LPARAM windows) {
    if (IsWindowVisible(window))
        reinterpret_cast<std::set<HWND>*>(windows)->insert(window);
    return TRUE;
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    std::set<HWND> known;
    for (bool isFirst = true;; isFirst = false) {
        std::set<HWND> visible;
        EnumWindows(AddVisible, reinterpret_cast<LPARAM>(&visible));
        for (const HWND window : visible)
            if (!isFirst && known.count(window) == 0)
                NotifyWinEvent(EVENT_OBJECT_SHOW, window, OBJID_WINDOW, CHILDID_SELF);
        known.swap(visible);
        Sleep(LookEveryMs);
    }
}
