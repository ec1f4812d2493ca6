#include "platform/system/windows/setup/SharedFolders.h"

#include "platform/system/windows/AccessRights.h"
#include "platform/system/windows/OwnedHandle.h"

#include <sddl.h>

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

/// Opens what stands at the path, a folder or a link as well.
FileHandle Open(const fs::path& path, DWORD access) {
    return FileHandle(
        CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
}

/// Removes a file, a link or an empty folder; true when there is none.
bool Remove(const fs::path& path) {
    const FileHandle file = Open(path, DELETE | FILE_WRITE_ATTRIBUTES);
    if (file.get() == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_FILE_NOT_FOUND || GetLastError() == ERROR_PATH_NOT_FOUND;
    FILE_BASIC_INFO writable{};
    writable.FileAttributes = FILE_ATTRIBUTE_NORMAL;
    FILE_DISPOSITION_INFO end{TRUE};
    return SetFileInformationByHandle(file.get(), FileBasicInfo, &writable, sizeof writable) &&
           SetFileInformationByHandle(file.get(), FileDispositionInfo, &end, sizeof end);
}

/// Makes the folder, or gives the one that is there to the administrators, with this list. What is in it
/// keeps its own: it may be another name of any file of the system.
bool Take(const fs::path& folder, const wchar_t* owner) {
    PSECURITY_DESCRIPTOR made = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(owner, SDDL_REVISION_1, &made, nullptr))
        return false;
    const std::unique_ptr<void, decltype(&LocalFree)> descriptor(made, &LocalFree);
    const DWORD there = GetFileAttributesW(folder.c_str());
    const bool isFolder = there != INVALID_FILE_ATTRIBUTES && there & FILE_ATTRIBUTE_DIRECTORY &&
                          !(there & FILE_ATTRIBUTE_REPARSE_POINT);
    if (!isFolder && !Remove(folder))
        return false;
    SECURITY_ATTRIBUTES attributes{sizeof attributes, descriptor.get(), FALSE};
    if (!CreateDirectoryW(folder.c_str(), &attributes) && GetLastError() != ERROR_ALREADY_EXISTS)
        return false;
    const FileHandle opened = Open(folder, WRITE_OWNER | WRITE_DAC);
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
    return Take(folder, ReadByUsers) && (isTrusted || Remove(configuration)) &&
           Take(folder / L"log", AddedToByUsers);
}
