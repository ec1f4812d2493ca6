// Another program's window, for tests: foreign_window TITLE X Y WIDTH HEIGHT [CLASS]
// It is topmost, takes the foreground, and nobody else closes it; it goes when its process is ended.
// On a line "raise" it comes above all windows without the focus, on a line "activate" it takes the
// foreground again, on "hide" and "close" it goes, and its process stays; when that is done, it repeats the
// line on standard output.
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <thread>

#include <windows.h>

#include <shellapi.h>

namespace {

constexpr UINT CommandMessage = WM_APP; // with the command's first letter

/// The commands are carried out by the window's thread.
void FollowCommands(HWND window) {
    for (char line[32]; std::fgets(line, sizeof line, stdin);) {
        SendMessageW(window, CommandMessage, static_cast<WPARAM>(line[0]), 0);
        std::fputs(line, stdout);
        std::fflush(stdout);
    }
}

LRESULT Follow(HWND window, WPARAM command) {
    switch (command) {
    case 'r':
        return SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    case 'a':
        return SetForegroundWindow(window);
    case 'h':
        return ShowWindow(window, SW_HIDE);
    case 'c':
        return DestroyWindow(window);
    default:
        return 0;
    }
}

LRESULT CALLBACK HandleMessage(HWND window, UINT message, WPARAM wide, LPARAM extra) {
    switch (message) {
    case WM_CLOSE:
        return 0;
    case CommandMessage:
        return Follow(window, wide);
    default:
        return DefWindowProcW(window, message, wide, extra);
    }
}

} // namespace

int WINAPI WinMain(HINSTANCE program, HINSTANCE, LPSTR, int) {
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (!words || count < 6)
        return EXIT_FAILURE;
    const auto number = [words](int index) {
        return static_cast<int>(std::wcstol(words[index], nullptr, 10));
    };

    WNDCLASSW kind{};
    kind.lpfnWndProc = HandleMessage;
    kind.hInstance = program;
    kind.lpszClassName = count > 6 ? words[6] : L"ForeignWindow";
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
