#pragma once

#include "platform/link/PipeExchange.h"
#include "platform/link/ReconnectBackoff.h"

#include <QLocalSocket>
#include <QTimer>
#include <string>

class SystemPipe;
struct PipePeer;

/// Where the link connects to, and whom it accepts there.
struct PipeServer {
    QString name;    ///< pipe name in the product's form
    QString account; ///< name or id of the account that may serve it beside the system's; may be empty
};

/// The link's half on the I/O thread: connects, checks who serves, reads frames, writes packets,
/// connects again. Every slot runs on the I/O thread.
class PipeConnection : public QObject {
    Q_OBJECT

public:
    PipeConnection(PipeExchange& exchange, PipeServer server, const SystemPipe& system);

public slots:
    void Open();
    /// Writes what waits (at most a fifth of a second) and closes for good.
    void Close();
    void WritePackets();
    void ReadFrames();

signals:
    /// PipeExchange holds events for the GUI thread.
    void EventsReady();

private:
    /// Whether the link talks to this server; logs when it does not.
    bool Accepts(const PipePeer& server);
    void OnConnected();
    void OnDropped();
    void Retry();
    void FlushPackets();
    /// Reads what lies in the socket, at most 64 KiB, and hands over its whole frames; false when there was
    /// nothing or the stream could not be followed.
    bool ReadSome();
    void Push(PipeExchange::Event::Kind kind);
    void Push(std::vector<PipeExchange::Event>&& events);

    PipeExchange& m_exchange;
    const PipeServer m_server;
    const SystemPipe& m_system;
    QLocalSocket m_socket{this};
    QTimer m_retry{this};
    ReconnectBackoff m_backoff;
    FrameDecoder m_decoder;
    QString m_accountId; // of m_server.account, once it is known
    QString m_refused;
    bool m_up = false;
    bool m_waiting = false; // for the GUI thread to catch up
};
