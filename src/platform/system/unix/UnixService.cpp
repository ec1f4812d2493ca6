// A signal ends a service here, and the user's desktop starts the front ends.
#include "platform/system/SystemService.h"

#include "platform/system/SystemSession.h"
#include "platform/system/unix/PipePath.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <cstddef>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int ConnectTimeoutMs = 1000;

class UnixListener final : public SystemService::Listener, public QLocalServer {
public:
    explicit UnixListener(const std::function<void(qintptr)>& connected) : m_connected(connected) {
        setSocketOptions(QLocalServer::WorldAccessOption);
    }

protected:
    void incomingConnection(quintptr descriptor) override { m_connected(static_cast<qintptr>(descriptor)); }

private:
    std::function<void(qintptr)> m_connected;
};

bool IsServed(const QString& path) {
    QLocalSocket probe;
    probe.connectToServer(path);
    return probe.waitForConnected(ConnectTimeoutMs);
}

class UnixService final : public SystemService {
public:
    std::unique_ptr<Listener> Listen(const QString& pipeName, const std::function<void(qintptr)>& connected,
                                     QString& problem) const override {
        const QString path = PipePath(pipeName);
        if (IsServed(path)) {
            problem = QStringLiteral("another process serves it");
            return nullptr;
        }
        QLocalServer::removeServer(path); // what a killed service left
        auto listener = std::make_unique<UnixListener>(connected);
        if (listener->listen(path))
            return listener;
        problem = listener->errorString();
        return nullptr;
    }

    QString BeginService(const Notices&) const override {
        SystemSession::Native().QuitOnSignals();
        return {};
    }

    /// The manager of services waits for this when the unit says so.
    void TellRunning() const override {
        static constexpr char Ready[] = "READY=1";
        const QByteArray path = qgetenv("NOTIFY_SOCKET");
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        if (path.isEmpty() || path.size() >= static_cast<int>(sizeof address.sun_path))
            return;
        std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
        if (path[0] == '@') // stands for a name that is no file's
            address.sun_path[0] = '\0';
        const auto size =
            static_cast<socklen_t>(offsetof(sockaddr_un, sun_path)) + static_cast<socklen_t>(path.size());
        const int socket = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
        if (socket < 0)
            return;
        ::sendto(socket, Ready, sizeof Ready - 1, MSG_NOSIGNAL | MSG_DONTWAIT,
                 reinterpret_cast<const sockaddr*>(&address), size);
        ::close(socket);
    }
};

} // namespace

const SystemService& SystemService::Native() {
    static const UnixService service;
    return service;
}
