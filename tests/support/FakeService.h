#pragma once

#include "platform/link/PipeConnection.h"
#include "platform/link/RyxPackage.h"

#include <QDeadlineTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>
#include <vector>

/// A service in the test's own process, for one client at a time: sends what the test says and keeps
/// what arrives.
class FakeService : public QObject {
    Q_OBJECT

public:
    FakeService();

    /// How a link reaches this service, accepting the account that the test runs as.
    PipeServer Address() const;

    bool WaitForClient();
    bool IsConnected() const { return m_socket && m_socket->state() == QLocalSocket::ConnectedState; }
    /// Connections made so far.
    int Connections() const { return m_connections; }

    void Write(const std::string& bytes);
    void Send(PipeKey key, const std::string& body = {}) { Write(RyxPackage::PackageData(key, body)); }
    /// Writes on without running the event loop, until `done`; false when nothing comes of it.
    template <class Condition>
    bool WriteUntil(Condition done) {
        const QDeadlineTimer deadline(10000);
        while (!done() && !deadline.hasExpired())
            m_socket->waitForBytesWritten(10);
        return done();
    }
    qint64 BytesToWrite() const { return m_socket->bytesToWrite(); }
    void Drop();
    /// Leaves what arrives from now on in the pipe.
    void StopReading();

    /// The next message of the client; waits for it. Key -1 when none comes.
    FrameDecoder::Frame Receive();
    /// Bytes that ever arrived.
    std::size_t ReceivedBytes() const { return m_receivedBytes; }

private:
    void Read();

    QLocalServer m_server;
    QPointer<QLocalSocket> m_socket;
    FrameDecoder m_decoder;
    std::size_t m_receivedBytes = 0;
    int m_connections = 0;
};
