#pragma once

#include <QRect>
#include <memory>
#include <qwindowdefs.h>

#include <windows.h>

#include <dwmapi.h>

struct CloseObject {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
/// A handle that is closed with this.
using ObjectHandle = std::unique_ptr<void, CloseObject>;

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
