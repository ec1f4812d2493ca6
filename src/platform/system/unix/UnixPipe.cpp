#include "platform/system/SystemPipe.h"

#include <array>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

QString AccountName(uid_t user) {
    passwd entry{};
    passwd* found = nullptr;
    std::array<char, 4096> buffer;
    if (::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return QString::number(user);
    return QString::fromLocal8Bit(found->pw_name);
}

/// Named pipes are local sockets in the temporary folder here.
class UnixPipe final : public SystemPipe {
public:
    QString LocalName(const QString& pipeName) const override {
        static const QString prefix = QStringLiteral("\\\\.\\pipe\\");
        return pipeName.startsWith(prefix) ? pipeName.mid(prefix.size()) : pipeName;
    }

    PipePeer Server(qintptr socket) const override {
        ucred credentials{};
        socklen_t size = sizeof credentials;
        if (::getsockopt(static_cast<int>(socket), SOL_SOCKET, SO_PEERCRED, &credentials, &size) != 0)
            return {};
        return {AccountName(credentials.uid), credentials.uid == 0};
    }

    QString CurrentAccount() const override { return AccountName(::geteuid()); }
};

} // namespace

const SystemPipe& SystemPipe::Native() {
    static const UnixPipe pipe;
    return pipe;
}
