#include "platform/system/windows/ProcessAccount.h"

#include "platform/system/windows/Handles.h"

#include <cstddef>
#include <iterator>
#include <sddl.h>
#include <vector>

namespace {

/// What a token tells of `kind`, with what it points to behind it.
template <class Structure>
class TokenFact {
public:
    TokenFact(HANDLE token, TOKEN_INFORMATION_CLASS kind) {
        DWORD size = 0;
        GetTokenInformation(token, kind, nullptr, 0, &size);
        m_storage.resize(size / sizeof(std::max_align_t) + 1);
        m_valid = GetTokenInformation(token, kind, m_storage.data(), size, &size) != FALSE;
    }
    /// Null when it may not be read.
    const Structure* Get() const {
        return m_valid ? reinterpret_cast<const Structure*>(m_storage.data()) : nullptr;
    }

private:
    std::vector<std::max_align_t> m_storage;
    bool m_valid = false;
};

ObjectHandle TokenOf(DWORD id) {
    const ObjectHandle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
    HANDLE token = nullptr;
    if (process)
        OpenProcessToken(process.get(), TOKEN_QUERY, &token);
    return ObjectHandle(token);
}

} // namespace

QString SidText(PSID sid) {
    wchar_t* text = nullptr;
    if (!sid || !ConvertSidToStringSidW(sid, &text))
        return {};
    const std::unique_ptr<wchar_t, decltype(&LocalFree)> owner(text, &LocalFree);
    return QString::fromWCharArray(text);
}

std::optional<QStringList> AccountsOfProcess(DWORD id) {
    const ObjectHandle token = TokenOf(id);
    const TokenFact<TOKEN_USER> user(token.get(), TokenUser);
    const TokenFact<TOKEN_GROUPS> groups(token.get(), TokenGroups);
    if (!user.Get() || !groups.Get())
        return std::nullopt;
    QStringList accounts(SidText(user.Get()->User.Sid));
    for (DWORD i = 0; i < groups.Get()->GroupCount; ++i) {
        const SID_AND_ATTRIBUTES& group = groups.Get()->Groups[i];
        if ((group.Attributes & SE_GROUP_ENABLED) != 0 &&
            IsWellKnownSid(group.Sid, WinBuiltinAdministratorsSid))
            accounts.append(SidText(group.Sid));
    }
    return accounts;
}

QString OwnAccountName() {
    const ObjectHandle token = TokenOf(GetCurrentProcessId());
    const TokenFact<TOKEN_USER> user(token.get(), TokenUser);
    wchar_t name[256];
    wchar_t domain[256];
    wchar_t computer[MAX_COMPUTERNAME_LENGTH + 1];
    DWORD nameSize = std::size(name);
    DWORD domainSize = std::size(domain);
    DWORD computerSize = std::size(computer);
    SID_NAME_USE use{};
    if (!user.Get() ||
        !LookupAccountSidW(nullptr, user.Get()->User.Sid, name, &nameSize, domain, &domainSize, &use))
        return {};
    const QString account = QString::fromWCharArray(name);
    const bool isLocal = GetComputerNameW(computer, &computerSize) && lstrcmpiW(domain, computer) == 0;
    return isLocal ? account : QString::fromWCharArray(domain) + QLatin1Char('\\') + account;
}
