// hold_file FILE: keeps a file open for reading until it is ended, as a virus scanner or a backup may; it
// says so.
#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    const HANDLE file = CreateFileW(__argc > 1 ? __wargv[1] : L"", GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return 1;
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), "held\n", 5, &written, nullptr);
    Sleep(INFINITE);
    return 0;
}
