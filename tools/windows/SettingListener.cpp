// Another program that hears of changed settings: prints "ready", and then "setting changed" each time.
#include <cstdio>

#include <windows.h>

namespace {

void Say(const char* line) {
    std::puts(line);
    std::fflush(stdout);
}

LRESULT CALLBACK HandleMessage(HWND window, UINT message, WPARAM wide, LPARAM extra) {
    if (message == WM_SETTINGCHANGE)
        Say("setting changed");
    return DefWindowProcW(window, message, wide, extra);
}

} // namespace

int WINAPI WinMain(HINSTANCE program, HINSTANCE, LPSTR, int) {
    WNDCLASSW kind{};
    kind.lpfnWndProc = HandleMessage;
    kind.hInstance = program;
    kind.lpszClassName = L"SettingListener";
    RegisterClassW(&kind);
    CreateWindowExW(0, kind.lpszClassName, L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, program,
                    nullptr);
    Say("ready");
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}
