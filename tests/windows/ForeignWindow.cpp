// Another program's window, for the end-to-end tests: foreign_window TITLE X Y WIDTH HEIGHT
// It is topmost, takes the foreground, and does not close; it goes when its process is ended.
#include <cstdlib>
#include <cwchar>

#include <windows.h>

#include <shellapi.h>

namespace {

LRESULT CALLBACK HandleMessage(HWND window, UINT message, WPARAM wide, LPARAM extra) {
    return message == WM_CLOSE ? 0 : DefWindowProcW(window, message, wide, extra);
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
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return EXIT_SUCCESS;
}
