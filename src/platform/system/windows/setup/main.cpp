// ryx-setup: what an installer does to a product that runs. It travels inside the installers and is not
// installed.
#include "platform/system/windows/setup/ProductFolder.h"
#include "platform/system/windows/setup/SharedFolders.h"

#include <exception>
#include <iostream>
#include <string>

#include <windows.h>

namespace {

enum ExitCode { Done = 0, BadUsage = 1, InUse = 20, NotShared = 23 };

ExitCode Run(int count, wchar_t** arguments) {
    const std::wstring verb = count > 2 ? arguments[1] : L"";
    ProductFolder folder(count > 2 ? arguments[2] : L"");
    if (count == 3 && verb == L"end")
        return folder.Free() ? Done : InUse;
    if (count == 4 && verb == L"replace")
        return folder.Free() && folder.Replace(arguments[3]) ? Done : InUse;
    if (count == 3 && verb == L"restore") {
        folder.Restore();
        return Done;
    }
    if (count == 3 && verb == L"share")
        return MakeSharedFolders(arguments[2]) ? Done : NotShared;
    std::cout << "usage: ryx-setup share FOLDER | end FOLDER | replace FOLDER NEW_FOLDER | restore FOLDER\n";
    return BadUsage;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    try {
        return Run(__argc, __wargv);
    } catch (const std::exception& error) {
        std::cout << error.what() << '\n';
        return InUse;
    }
}
