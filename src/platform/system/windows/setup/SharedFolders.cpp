#include "platform/system/windows/setup/SharedFolders.h"

#include "platform/system/windows/AccessRights.h"
#include "platform/system/windows/OwnedHandle.h"

#include <sddl.h>
#include <string>

namespace {

namespace fs = std::filesystem;

// Everything for the system and the administrators, who are the owner. Users read the one folder and what is
// in it; in the other they list and add files, and have to themselves what they have added.
constexpr wchar_t ReadByUsers[] = L"O:BAD:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)(A;OICI;0x1200A9;;;BU)";
constexpr wchar_t AddedToByUsers[] =
    L"O:BAD:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)(A;;0x1200AB;;;BU)(A;OIIO;FA;;;CO)";

/// Lets an administrator open what its owner has closed to administrators.
void TakeRightToRestore() {
    HANDLE opened = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES, &opened))
        return;
    const ObjectHandle token(opened);
    TOKEN_PRIVILEGES privileges{1, {{{}, SE_PRIVILEGE_ENABLED}}};
    if (LookupPrivilegeValueW(nullptr, L"SeRestorePrivilege", &privileges.Privileges[0].Luid))
        AdjustTokenPrivileges(token.get(), FALSE, &privileges, 0, nullptr, nullptr);
}

/// Gives what stands at the path another name; true when there is nothing.
bool PutAside(const fs::path& path) {
    const fs::path aside = fs::path(path) += L".old-" + std::to_wstring(GetTickCount64());
    return MoveFileExW(path.c_str(), aside.c_str(), 0) || GetLastError() == ERROR_FILE_NOT_FOUND ||
           GetLastError() == ERROR_PATH_NOT_FOUND;
}

/// Makes the folder. Only one that is the administrators' is taken over, with this list: whoever made another
/// one may hold handles that keep the rights they were opened with. What is in it keeps its own list: it may
/// be another name of any file of the system.
bool Take(const fs::path& folder, const wchar_t* owner) {
    PSECURITY_DESCRIPTOR made = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(owner, SDDL_REVISION_1, &made, nullptr))
        return false;
    const std::unique_ptr<void, decltype(&LocalFree)> descriptor(made, &LocalFree);
    const FileRights rights = FileRights::Of(folder);
    std::error_code error; // no folder either
    if (!rights.isOwnedByAdministrators || rights.isLink || !fs::is_directory(folder, error)) {
        SECURITY_ATTRIBUTES attributes{sizeof attributes, descriptor.get(), FALSE};
        return PutAside(folder) && CreateDirectoryW(folder.c_str(), &attributes);
    }
    const FileHandle opened(CreateFileW(
        folder.c_str(), WRITE_OWNER | WRITE_DAC, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
        nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    return opened.get() != INVALID_HANDLE_VALUE &&
           SetKernelObjectSecurity(opened.get(),
                                   OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION |
                                       PROTECTED_DACL_SECURITY_INFORMATION,
                                   descriptor.get()) &&
           !FileRights::Of(folder).isLink; // one that came in between
}

} // namespace

bool MakeSharedFolders(const fs::path& folder) {
    TakeRightToRestore();
    const fs::path configuration = folder / L"ryx.json";
    const bool isTrusted = FileRights::Of(folder).WhyNotTrusted().empty() &&
                           FileRights::Of(configuration).WhyNotTrusted().empty();
    return Take(folder, ReadByUsers) && (isTrusted || PutAside(configuration)) &&
           Take(folder / L"log", AddedToByUsers);
}
