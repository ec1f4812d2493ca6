#include "platform/system/SystemPipe.h"

#include "platform/ProductConstants.h"
#include "platform/system/unix/PipePath.h"

#include <QDir>
#include <QFile>
#include <array>
#include <cstring>
#include <pwd.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

QString Id(uid_t user) {
    return QString::number(user);
}

/// Asks the system's list of users with `look`; the entry's texts stand in `buffer`.
using EntryBuffer = std::array<char, 4096>;
template <class Look>
const passwd* Entry(passwd& entry, EntryBuffer& buffer, Look look) {
    passwd* found = nullptr;
    return look(&entry, buffer.data(), buffer.size(), &found) == 0 ? found : nullptr;
}

PipePeer PeerOf(int socket) {
    ucred credentials{};
    socklen_t size = sizeof credentials;
    if (::getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &credentials, &size) != 0)
        return {};
    const QString user = Id(credentials.uid);
    PipePeer peer;
    peer.process = static_cast<quint32>(credentials.pid);
    peer.owner = user;
    peer.accounts = QStringList(user);
    return peer;
}

class UnixPipe final : public SystemPipe {
public:
    qintptr Open(const QString& pipeName, const Accepts& accepts) const override {
        const QByteArray path = QFile::encodeName(PipePath(pipeName));
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        if (path.size() >= static_cast<int>(sizeof address.sun_path))
            return -1;
        std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
        const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        if (socket < 0)
            return -1;
        if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
            accepts(PeerOf(socket)))
            return socket;
        ::close(socket);
        return -1;
    }

    QString AccountId(const QString& account) const override {
        bool isNumber = false;
        const uint number = account.toUInt(&isNumber);
        if (isNumber)
            return Id(number);
        passwd entry{};
        EntryBuffer buffer;
        const passwd* found = Entry(entry, buffer, [&](auto... rest) {
            return ::getpwnam_r(account.toLocal8Bit().constData(), rest...);
        });
        return found ? Id(found->pw_uid) : QString();
    }

    QStringList SystemAccounts() const override { return {Id(0)}; }

    QStringList OwnAccounts() const override { return {Id(::geteuid())}; }

    QString CurrentAccount() const override {
        passwd entry{};
        EntryBuffer buffer;
        const passwd* found =
            Entry(entry, buffer, [](auto... rest) { return ::getpwuid_r(::geteuid(), rest...); });
        return found ? QString::fromLocal8Bit(found->pw_name) : Id(::geteuid());
    }
};

} // namespace

QString PipePath(const QString& pipeName) {
    static const QString prefix = QStringLiteral("\\\\.\\pipe\\");
    const QString name = pipeName.startsWith(prefix) ? pipeName.mid(prefix.size()) : pipeName;
    static const QDir serviceFolder(QStringLiteral("/run/velmora-ryx"));
    const bool isProducts = pipeName == QLatin1String(Product::ServicePipe) && serviceFolder.exists();
    return (isProducts ? serviceFolder : QDir::temp()).filePath(name);
}

const SystemPipe& SystemPipe::Native() {
    static const UnixPipe pipe;
    return pipe;
}
