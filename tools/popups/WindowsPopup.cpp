#include "NativePopup.h"

#include <windows.h>

void NativePopup::TellShown(WId window) {
    static const bool isWine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    if (isWine) // which tells of nothing by itself
        NotifyWinEvent(EVENT_OBJECT_SHOW, reinterpret_cast<HWND>(window), OBJID_WINDOW, CHILDID_SELF);
}

// Qt would only note it down and handle it later.
bool NativePopup::IsCloseRequest(const QByteArray& eventType, void* message) {
    return eventType == "windows_generic_MSG" && static_cast<MSG*>(message)->message == WM_CLOSE;
}
