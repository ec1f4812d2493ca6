#include "platform/system/windows/AccessRights.h"
#include "platform/system/windows/OwnedHandle.h"

#include <aclapi.h>
#include <sddl.h>

namespace {

/// Whoever has more than this may change the file, replace it, or give others the right to.
constexpr DWORD Reading = FILE_GENERIC_READ | FILE_GENERIC_EXECUTE | GENERIC_READ | GENERIC_EXECUTE;

std::string TextOf(PSID account) {
    LPSTR text = nullptr;
    const bool isText = ConvertSidToStringSidA(account, &text) != 0;
    const std::unique_ptr<char, decltype(&LocalFree)> owner(text, &LocalFree);
    return isText ? text : "an unknown account";
}

/// Whether the token of this process has this account as `kind`, such as its user.
bool IsOfThisProcess(PSID account, TOKEN_INFORMATION_CLASS kind) {
    alignas(TOKEN_USER) unsigned char fact[sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE];
    DWORD size = 0;
    HANDLE opened = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &opened))
        return false;
    const ObjectHandle token(opened);
    return GetTokenInformation(token.get(), kind, fact, sizeof fact, &size) &&
           EqualSid(account, *reinterpret_cast<PSID*>(fact)); // with which the structures of all kinds begin
}

/// Whether this process runs as the account and has an administrator's rights, as everybody's has where user
/// account control is off: nothing keeps that account's programs from what is for administrators only.
bool IsAdministratorRunningThis(PSID account) {
    alignas(SID) unsigned char group[SECURITY_MAX_SID_SIZE];
    DWORD size = sizeof group;
    BOOL isMember = FALSE;
    return CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, group, &size) &&
           CheckTokenMembership(nullptr, group, &isMember) && isMember && IsOfThisProcess(account, TokenUser);
}

bool IsAdministrative(PSID account) {
    return IsWellKnownSid(account, WinLocalSystemSid) ||
           IsWellKnownSid(account, WinBuiltinAdministratorsSid) || IsAdministratorRunningThis(account);
}

/// The first one beside the administrators whom the list lets change the file; empty: there is none.
std::string WriterIn(PACL list) {
    if (!list)
        return "everybody";
    for (DWORD i = 0; i < list->AceCount; ++i) {
        void* found = nullptr;
        if (!GetAce(list, i, &found))
            return "an unknown account";
        auto* entry = static_cast<ACCESS_ALLOWED_ACE*>(found);
        // What is inherited only stands in the lists of the files that have inherited it; a denial takes
        // nothing from what others are allowed.
        if (entry->Header.AceFlags & INHERIT_ONLY_ACE || entry->Header.AceType == ACCESS_DENIED_ACE_TYPE)
            continue;
        if (entry->Header.AceType != ACCESS_ALLOWED_ACE_TYPE)
            return "an entry of an unknown kind";
        PSID account = &entry->SidStart;
        const bool isOwner = IsWellKnownSid(account, WinCreatorOwnerRightsSid); // who is looked at besides
        if (entry->Mask & ~Reading && !isOwner && !IsAdministrative(account))
            return TextOf(account);
    }
    return {};
}

} // namespace

FileRights RightsIn(PSECURITY_DESCRIPTOR descriptor) {
    PSID owner = nullptr;
    PACL list = nullptr;
    BOOL isDefault = FALSE;
    BOOL hasList = FALSE;
    FileRights rights;
    rights.areKnown = GetSecurityDescriptorOwner(descriptor, &owner, &isDefault) && owner &&
                      GetSecurityDescriptorDacl(descriptor, &hasList, &list, &isDefault);
    if (!rights.areKnown)
        return rights;
    rights.isOwnedByAdministrators = IsAdministrative(owner);
    rights.isOwn = IsOfThisProcess(owner, TokenOwner) || IsOfThisProcess(owner, TokenUser);
    rights.owner = TextOf(owner);
    rights.writer = WriterIn(hasList ? list : nullptr);
    return rights;
}

FileRights FileRights::Of(const std::filesystem::path& path) {
    const FileHandle file(CreateFileW(
        path.c_str(), READ_CONTROL | FILE_READ_ATTRIBUTES,
        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
        FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr)); // folders and links as well
    FILE_ATTRIBUTE_TAG_INFO attributes{};
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!GetFileInformationByHandleEx(file.get(), FileAttributeTagInfo, &attributes, sizeof attributes) ||
        GetSecurityInfo(file.get(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION,
                        nullptr, nullptr, nullptr, nullptr, &descriptor) != ERROR_SUCCESS)
        return {};
    const std::unique_ptr<void, decltype(&LocalFree)> owner(descriptor, &LocalFree);
    FileRights rights = RightsIn(descriptor);
    rights.isLink = attributes.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT;
    return rights;
}
