// Does to another program's window what any program of the same user may do: attack COMMAND TITLE [NUMBER]
// Prints "done" when it is done and ends, unless a line below says that it stays.
//
//   hide, hide-in-place, minimise, force-minimise, system-minimise, maximise, move, shrink, disable, freeze,
//   region, transparent, untop, bottom, adopt, close
//   quit, end-session     posts WM_QUIT or WM_ENDSESSION to the window's thread
//   query-end-session     asks every window of the process; prints "answer N" for each
//   kill, crash           ends the process, or starts a thread in it where there is no code
//   own                   makes the window belong to one of its own; stays
//   raise NUMBER          shows a topmost window of its own and lifts it so many times; stays
//   hang                  shows a window of its own, takes the foreground, and answers nobody for 10 seconds
//   hot-key               takes Ctrl+Alt+K; prints "hot key" when it is pressed; stays
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <functional>
#include <map>
#include <string>

#include <windows.h>

#include <shellapi.h>

namespace {

void Say(const std::string& line) {
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

DWORD ProcessOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

void PostToThread(HWND window, UINT message, WPARAM wide) {
    PostThreadMessageW(GetWindowThreadProcessId(window, nullptr), message, wide, 0);
    PostMessageW(window, message, wide, 0);
}

BOOL CALLBACK AskForEnd(HWND window, LPARAM process) {
    if (ProcessOf(window) == static_cast<DWORD>(process)) {
        DWORD_PTR answer = 0;
        if (SendMessageTimeoutW(window, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, 5000, &answer))
            Say("answer " + std::to_string(answer));
        else
            Say("no answer");
    }
    return TRUE;
}

void Kill(HWND window) {
    const HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, ProcessOf(window));
    if (!process || !TerminateProcess(process, 1))
        Say("refused " + std::to_string(GetLastError()));
    CloseHandle(process);
}

void Crash(HWND window) {
    const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, ProcessOf(window));
    const auto noCode = reinterpret_cast<LPTHREAD_START_ROUTINE>(static_cast<ULONG_PTR>(16));
    if (!process || !CreateRemoteThread(process, nullptr, 0, noCode, nullptr, 0, nullptr))
        Say("refused " + std::to_string(GetLastError()));
    CloseHandle(process);
}

int RunMessageLoop() {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_HOTKEY)
            Say("hot key");
        DispatchMessageW(&message);
    }
    return EXIT_SUCCESS;
}

HWND ShowOwnWindow() {
    return CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, L"STATIC", L"Raised",
                           WS_POPUP | WS_VISIBLE | SS_WHITERECT, 300, 200, 500, 400, nullptr, nullptr,
                           nullptr, nullptr);
}

int Raise(int times) {
    const HWND own = ShowOwnWindow();
    for (int i = 0; i < times; ++i)
        SetWindowPos(own, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    Say("done");
    return RunMessageLoop();
}

int Own(HWND window) {
    SetWindowLongPtrW(window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(ShowOwnWindow()));
    Say("done");
    return RunMessageLoop();
}

int Hang() {
    const HWND own = ShowOwnWindow();
    SetForegroundWindow(own);
    Say("done");
    Sleep(10000);
    return EXIT_SUCCESS;
}

int TakeHotKey() {
    Say(RegisterHotKey(nullptr, 1, MOD_CONTROL | MOD_ALT, 'K') ? "done" : "refused");
    return RunMessageLoop();
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (!words || count < 3)
        return EXIT_FAILURE;
    const std::wstring command = words[1];
    const HWND window = FindWindowW(nullptr, words[2]);
    if (!window) {
        Say("no such window");
        return EXIT_FAILURE;
    }
    if (command == L"raise")
        return Raise(count > 3 ? static_cast<int>(std::wcstol(words[3], nullptr, 10)) : 1);
    if (command == L"own")
        return Own(window);
    if (command == L"hang")
        return Hang();
    if (command == L"hot-key")
        return TakeHotKey();

    constexpr UINT still = SWP_NOACTIVATE | SWP_NOZORDER;
    const std::map<std::wstring, std::function<void()>> acts{
        {L"hide", [=] { ShowWindow(window, SW_HIDE); }},
        {L"hide-in-place",
         [=] {
             SetWindowPos(window, nullptr, 0, 0, 0, 0, still | SWP_NOMOVE | SWP_NOSIZE | SWP_HIDEWINDOW);
         }},
        {L"minimise", [=] { ShowWindow(window, SW_MINIMIZE); }},
        {L"force-minimise", [=] { ShowWindow(window, SW_FORCEMINIMIZE); }},
        {L"system-minimise", [=] { PostMessageW(window, WM_SYSCOMMAND, SC_MINIMIZE, 0); }},
        {L"maximise", [=] { ShowWindow(window, SW_MAXIMIZE); }},
        {L"move", [=] { SetWindowPos(window, nullptr, 4000, 3000, 0, 0, still | SWP_NOSIZE); }},
        {L"shrink", [=] { SetWindowPos(window, nullptr, 0, 0, 40, 30, still | SWP_NOMOVE); }},
        {L"disable", [=] { EnableWindow(window, FALSE); }},
        {L"freeze", [=] { SendMessageW(window, WM_SETREDRAW, FALSE, 0); }},
        {L"region", [=] { SetWindowRgn(window, CreateRectRgn(0, 0, 10, 10), TRUE); }},
        {L"transparent",
         [=] {
             SetWindowLongW(window, GWL_EXSTYLE, GetWindowLongW(window, GWL_EXSTYLE) | WS_EX_LAYERED);
             SetLayeredWindowAttributes(window, 0, 0, LWA_ALPHA);
         }},
        {L"untop",
         [=] { SetWindowPos(window, HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE); }},
        {L"bottom",
         [=] { SetWindowPos(window, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE); }},
        {L"adopt", [=] { SetParent(window, FindWindowW(nullptr, L"Velmora RYX")); }},
        {L"close", [=] { PostMessageW(window, WM_CLOSE, 0, 0); }},
        {L"quit", [=] { PostToThread(window, WM_QUIT, 0); }},
        {L"end-session", [=] { PostToThread(window, WM_ENDSESSION, TRUE); }},
        {L"query-end-session", [=] { EnumWindows(AskForEnd, static_cast<LPARAM>(ProcessOf(window))); }},
        {L"kill", [=] { Kill(window); }},
        {L"crash", [=] { Crash(window); }},
    };
    const auto act = acts.find(command);
    if (act == acts.end()) {
        Say("no such command");
        return EXIT_FAILURE;
    }
    act->second();
    Say("done");
    return EXIT_SUCCESS;
}
