#include "platform/system/windows/ShownWindows.h"

namespace {

// The system hands no context to the hook.
std::function<void(WId)> onShown;

} // namespace

HWINEVENTHOOK ShownWindows::Watch(const std::function<void(WId)>& shown) {
    onShown = shown;
    return SetWinEventHook(EVENT_MIN, EVENT_MAX, nullptr, OnEvent, 0, 0,
                           WINEVENT_OUTOFCONTEXT | WINEVENT_SKIPOWNPROCESS);
}

void ShownWindows::EndWatch(HWINEVENTHOOK hook) {
    UnhookWinEvent(hook);
    onShown = nullptr; // events that are on their way may still come
}

void CALLBACK ShownWindows::OnEvent(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD,
                                    DWORD) {
    if (event == EVENT_OBJECT_SHOW && object == OBJID_WINDOW && child == CHILDID_SELF && onShown)
        onShown(reinterpret_cast<WId>(window));
}
