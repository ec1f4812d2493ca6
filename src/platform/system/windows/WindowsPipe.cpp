#include "platform/system/SystemPipe.h"

#include "platform/system/windows/PipeName.h"
#include "platform/system/windows/ProcessAccount.h"

#include <aclapi.h>
#include <array>
#include <cstddef>
#include <glog/logging.h>
#include <iterator>
#include <memory>

namespace {

// Writing data, and not GENERIC_WRITE, which contains the right to serve the pipe besides.
constexpr DWORD ClientAccess = GENERIC_READ | FILE_WRITE_DATA | FILE_WRITE_ATTRIBUTES | SYNCHRONIZE;
// Whoever serves it may learn who this is, and not act in its name.
constexpr DWORD ClientFlags = FILE_FLAG_OVERLAPPED | SECURITY_SQOS_PRESENT | SECURITY_IDENTIFICATION;

QString OwnerOf(HANDLE pipe) {
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetSecurityInfo(pipe, SE_KERNEL_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr, nullptr,
                        &descriptor) != ERROR_SUCCESS)
        return {};
    const std::unique_ptr<void, decltype(&LocalFree)> keeper(descriptor, &LocalFree);
    return SidText(owner);
}

PipePeer ServerOf(HANDLE pipe) {
    PipePeer server;
    server.owner = OwnerOf(pipe);
    ULONG number = 0;
    if (GetNamedPipeServerProcessId(pipe, &number)) {
        server.process = number;
        server.accounts = AccountsOfProcess(number);
    }
    // The pipe itself knows this: a process of the system may not even be asked for its session.
    server.inSystemSession = GetNamedPipeServerSessionId(pipe, &number) && number == 0;
    return server;
}

class WindowsPipe final : public SystemPipe {
public:
    qintptr Open(const QString& pipeName, const Accepts& accepts) const override {
        const HANDLE pipe = CreateFileW(PipeName(pipeName).c_str(), ClientAccess, 0, nullptr, OPEN_EXISTING,
                                        ClientFlags, nullptr);
        if (pipe == INVALID_HANDLE_VALUE) {
            const DWORD error = GetLastError();
            if (error != ERROR_FILE_NOT_FOUND && error != ERROR_PIPE_BUSY) {
                LOG_FIRST_N(WARNING, 3) << "WindowsPipe::Open error " << error;
            }
            return -1;
        }
        if (accepts(ServerOf(pipe)))
            return reinterpret_cast<qintptr>(pipe);
        CloseHandle(pipe);
        return -1;
    }

    QString AccountId(const QString& account) const override {
        if (account.startsWith(QLatin1String("S-1-"), Qt::CaseInsensitive))
            return account.toUpper();
        // A plain name is an account of this computer, and not one of the domain when this has none.
        QString name = account.startsWith(QLatin1String(".\\")) ? account.mid(2) : account;
        wchar_t computer[MAX_COMPUTERNAME_LENGTH + 1];
        DWORD computerSize = std::size(computer);
        if (!name.contains(QLatin1Char('\\')) && !name.contains(QLatin1Char('@')) &&
            GetComputerNameW(computer, &computerSize))
            name.prepend(QString::fromWCharArray(computer) + QLatin1Char('\\'));
        std::array<std::max_align_t, SECURITY_MAX_SID_SIZE / sizeof(std::max_align_t) + 1> sid;
        wchar_t domain[256];
        DWORD sidSize = sizeof sid;
        DWORD domainSize = std::size(domain);
        SID_NAME_USE use{};
        return LookupAccountNameW(nullptr, name.toStdWString().c_str(), sid.data(), &sidSize, domain,
                                  &domainSize, &use)
                   ? SidText(sid.data())
                   : QString();
    }

    /// The local system account and the administrators, to whom belongs what the local system account makes.
    QStringList SystemAccounts() const override {
        return {QStringLiteral("S-1-5-18"), QStringLiteral("S-1-5-32-544")};
    }

    QStringList OwnAccounts() const override {
        return AccountsOfProcess(GetCurrentProcessId()).value_or(QStringList());
    }

    QString CurrentAccount() const override { return OwnAccountName(); }
};

} // namespace

const SystemPipe& SystemPipe::Native() {
    static const WindowsPipe pipe;
    return pipe;
}
