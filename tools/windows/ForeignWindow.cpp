// Another program's window, for the end-to-end tests: foreign_window TITLE X Y WIDTH HEIGHT
// It is topmost, takes the foreground, and does not close; it goes when its process is ended.
// On a line "raise" it comes above all windows without the focus, on a line "activate" it takes the
// foreground again; when that is done, it repeats the line on standard output.
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <string>
#include <thread>

#include <windows.h>

#include <shellapi.h>

namespace {

constexpr UINT RaiseMessage = WM_APP;
constexpr UINT ActivateMessage = WM_APP + 1;

/// The commands are carried out by the window's thread.
void FollowCommands(HWND window) {
    for (char line[32]; std::fgets(line, sizeof line, stdin);) {
        SendMessageW(window, std::string(line) == "raise\n" ? RaiseMessage : ActivateMessage, 0, 0);
        std::fputs(line, stdout);
        std::fflush(stdout);
    }
}

LRESULT CALLBACK HandleMessage(HWND window, UINT message, WPARAM wide, LPARAM extra) {
    switch (message) {
    case WM_CLOSE:
        return 0;
    case RaiseMessage:
        return SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    case ActivateMessage:
        return SetForegroundWindow(window);
    default:
        return DefWindowProcW(window, message, wide, extra);
    }
}

} // namespace

int WINAPI WinMain(HINSTANCE program, HINSTANCE, LPSTR, int) {
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (!words || count != 6)
        return EXIT_FAILURE;
    const auto number = [words](int index) {
        return static_cast<int>(std::wcstol(words[index], nullptr, 10));
    };

    WNDCLASSW kind{};
    kind.lpfnWndProc = HandleMessage;
    kind.hInstance = program;
    kind.lpszClassName = L"ForeignWindow";
    kind.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_HIGHLIGHT + 1);
    RegisterClassW(&kind);
    const HWND window =
        CreateWindowExW(WS_EX_TOPMOST, kind.lpszClassName, words[1], WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                        number(2), number(3), number(4), number(5), nullptr, nullptr, program, nullptr);
    SetForegroundWindow(window);
    std::thread(FollowCommands, window).detach();
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return EXIT_SUCCESS;
}
