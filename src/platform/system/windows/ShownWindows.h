#pragma once

#include <functional>
#include <qwindowdefs.h>

#include <windows.h>

/// The hook on the events of other programs' windows. The thread that watches.
namespace ShownWindows {

/// Null when the system refuses.
HWINEVENTHOOK Watch(const std::function<void(WId window)>& shown);
void EndWatch(HWINEVENTHOOK hook);

/// What the system calls for each event of each window, which is thousands of times a second.
void CALLBACK OnEvent(HWINEVENTHOOK hook, DWORD event, HWND window, LONG object, LONG child, DWORD thread,
                      DWORD time);

} // namespace ShownWindows
