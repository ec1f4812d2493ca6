#pragma once

#include "platform/system/windows/OwnedHandle.h"

#include <QRect>
#include <qwindowdefs.h>

#include <windows.h>

#include <dwmapi.h>

inline HWND Handle(WId window) {
    return reinterpret_cast<HWND>(window);
}

inline QRect ToRect(const RECT& rect) {
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

/// Whether the system hides the window although it is shown; one that cannot be asked about is not.
inline bool IsWindowCloaked(HWND window) {
    DWORD cloaked = 0;
    return SUCCEEDED(DwmGetWindowAttribute(window, DWMWA_CLOAKED, &cloaked, sizeof cloaked)) && cloaked != 0;
}
