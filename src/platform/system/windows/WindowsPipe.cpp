#include "platform/system/windows/ProcessAccount.h"

#include <windows.h>

namespace {

class WindowsPipe final : public SystemPipe {
public:
    QString LocalName(const QString& pipeName) const override { return pipeName; }

    PipePeer Server(qintptr socket) const override {
        ULONG process = 0;
        if (!GetNamedPipeServerProcessId(reinterpret_cast<HANDLE>(socket), &process))
            return {};
        const PipePeer peer = AccountOfToken(process);
        // An ordinary user may not read the token of a process of the system.
        return peer.account.isEmpty() ? AccountOfService(process) : peer;
    }

    QString CurrentAccount() const override { return AccountOfToken(GetCurrentProcessId()).account; }
};

} // namespace

const SystemPipe& SystemPipe::Native() {
    static const WindowsPipe pipe;
    return pipe;
}
