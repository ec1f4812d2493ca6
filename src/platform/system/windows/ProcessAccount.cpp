#include "platform/system/windows/ProcessAccount.h"

#include "platform/system/windows/Handles.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <type_traits>
#include <vector>

namespace {

struct CloseService {
    void operator()(SC_HANDLE handle) const { CloseServiceHandle(handle); }
};
using Service = std::unique_ptr<std::remove_pointer_t<SC_HANDLE>, CloseService>;

/// A structure that a system call fills in, with what it points to behind it.
template <class Structure>
class Buffer {
public:
    explicit Buffer(DWORD bytes) : m_storage(bytes / sizeof(std::max_align_t) + 1) {}

    Structure* Get() { return reinterpret_cast<Structure*>(m_storage.data()); }
    DWORD Size() const { return static_cast<DWORD>(m_storage.size() * sizeof(std::max_align_t)); }

private:
    std::vector<std::max_align_t> m_storage;
};

/// Accounts of this computer go by their plain name, all others by "DOMAIN\name".
QString AccountName(PSID sid) {
    wchar_t name[256];
    wchar_t domain[256];
    wchar_t computer[MAX_COMPUTERNAME_LENGTH + 1];
    DWORD nameSize = std::size(name);
    DWORD domainSize = std::size(domain);
    DWORD computerSize = std::size(computer);
    SID_NAME_USE use{};
    if (!LookupAccountSidW(nullptr, sid, name, &nameSize, domain, &domainSize, &use))
        return {};
    const QString account = QString::fromWCharArray(name);
    const bool isLocal = GetComputerNameW(computer, &computerSize) && lstrcmpiW(domain, computer) == 0;
    return isLocal ? account : QString::fromWCharArray(domain) + QLatin1Char('\\') + account;
}

/// The service in process `id`, by its name; empty when there is none.
std::wstring ServiceIn(SC_HANDLE manager, DWORD id) {
    DWORD more = 0;
    DWORD count = 0;
    DWORD resume = 0;
    Buffer<ENUM_SERVICE_STATUS_PROCESSW> services(64 * 1024);
    BOOL complete = FALSE;
    do {
        complete = EnumServicesStatusExW(manager, SC_ENUM_PROCESS_INFO, SERVICE_WIN32, SERVICE_ACTIVE,
                                         reinterpret_cast<BYTE*>(services.Get()), services.Size(), &more,
                                         &count, &resume, nullptr);
        if (!complete && GetLastError() != ERROR_MORE_DATA)
            return {};
        for (DWORD i = 0; i < count; ++i) {
            const ENUM_SERVICE_STATUS_PROCESSW& service = services.Get()[i];
            if (service.ServiceStatusProcess.dwProcessId == id)
                return service.lpServiceName;
        }
    } while (!complete);
    return {};
}

} // namespace

PipePeer AccountOfToken(quint32 id) {
    const ObjectHandle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
    HANDLE opened = nullptr;
    if (!process || !OpenProcessToken(process.get(), TOKEN_QUERY, &opened))
        return {};
    const ObjectHandle token(opened);
    DWORD size = 0;
    GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    Buffer<TOKEN_USER> user(size);
    if (!GetTokenInformation(token.get(), TokenUser, user.Get(), user.Size(), &size))
        return {};
    const PSID sid = user.Get()->User.Sid;
    return {AccountName(sid), IsWellKnownSid(sid, WinLocalSystemSid) != FALSE};
}

PipePeer AccountOfService(quint32 id) {
    const Service manager(
        OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT | SC_MANAGER_ENUMERATE_SERVICE));
    if (!manager)
        return {};
    const std::wstring name = ServiceIn(manager.get(), id);
    if (name.empty())
        return {};
    const Service service(OpenServiceW(manager.get(), name.c_str(), SERVICE_QUERY_CONFIG));
    if (!service)
        return {};
    DWORD size = 0;
    QueryServiceConfigW(service.get(), nullptr, 0, &size);
    Buffer<QUERY_SERVICE_CONFIGW> config(size);
    if (!QueryServiceConfigW(service.get(), config.Get(), config.Size(), &size))
        return {};
    const QString account = QString::fromWCharArray(config.Get()->lpServiceStartName);
    const bool isSystem = account.compare(QLatin1String("LocalSystem"), Qt::CaseInsensitive) == 0;
    return {account.startsWith(QLatin1String(".\\")) ? account.mid(2) : account, isSystem};
}
