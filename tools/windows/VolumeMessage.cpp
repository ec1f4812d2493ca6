// Tells every top-level window what the system tells when drives come or go:
//
//   volume_message arrive|remove LETTERS     such as: volume_message arrive EF
//   volume_message arrive LETTER FOLDER      puts the letter of that folder into the system's list first
//
// Prints "done" when all of them have heard it. Otherwise the drives are the caller's to make and take away.
#include <cstdio>
#include <cstdlib>
#include <string>

#include <windows.h>

#include <dbt.h>
#include <shellapi.h>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    if (!words || (count != 3 && count != 4))
        return EXIT_FAILURE;
    const bool arrives = std::wstring(words[1]) == L"arrive";
    DEV_BROADCAST_VOLUME volume{};
    volume.dbcv_size = sizeof volume;
    volume.dbcv_devicetype = DBT_DEVTYP_VOLUME;
    for (const wchar_t letter : std::wstring(words[2]))
        if (letter >= L'A' && letter <= L'Z')
            volume.dbcv_unitmask |= 1u << (letter - L'A');
    if (count == 4)
        DefineDosDeviceW(0, (std::wstring(words[2]) + L':').c_str(), words[3]);
    DWORD_PTR answer = 0;
    constexpr UINT timeoutMs = 5000;
    const LRESULT isSent = SendMessageTimeoutW(
        HWND_BROADCAST, WM_DEVICECHANGE, arrives ? DBT_DEVICEARRIVAL : DBT_DEVICEREMOVECOMPLETE,
        reinterpret_cast<LPARAM>(&volume), SMTO_ABORTIFHUNG, timeoutMs, &answer);
    std::printf(isSent ? "done\n" : "failed %lu\n", GetLastError());
    return isSent ? EXIT_SUCCESS : EXIT_FAILURE;
}
