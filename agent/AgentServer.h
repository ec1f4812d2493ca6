#pragma once

#include "EventLog.h"
#include "platform/link/RyxPackage.h"
#include "platform/system/SystemService.h"

#include <QObject>
#include <QString>
#include <map>
#include <memory>
#include <string>
#include <vector>

class QLocalSocket;

/// The service's end of the pipe: accepts front ends, cuts their bytes into messages and
/// writes messages to them. Clients are numbered from 1 in the order in which they connect. Tells
/// everything that happens in the event log.
class AgentServer : public QObject {
    Q_OBJECT

public:
    /// Bytes that may wait for a client that does not read before it is dropped.
    static constexpr qint64 UnreadLimit = 64 * 1024 * 1024;
    /// Clients that are served at a time. A program that connects again and again must not use up what the
    /// system lets this process open: it would listen no longer.
    static constexpr std::size_t MostClients = 200;

    explicit AgentServer(EventLog& log);
    ~AgentServer() override;

    /// Serves the pipe, for the people of this machine. What a dead service left of it is removed; a pipe
    /// that another process serves is not touched. Returns what went wrong, or an empty text.
    QString Listen(const QString& pipeName);

    /// Each writes to every client, or only to `client`.
    void Send(PipeKey key, const std::string& body);
    void SendTo(int client, PipeKey key, const std::string& body);
    /// Writes bytes as they stand, frame or not, to every client.
    void SendBytes(const std::string& bytes);

    /// Ends every connection.
    void DropClients();
    std::vector<int> Clients() const;

    /// Whether the lines about messages that arrive show their bodies.
    void ShowBodies(bool show) { m_showBodies = show; }

signals:
    void ClientConnected(int client);
    void ClientGone(int client);
    void MessageReceived(PipeKey key, const std::string& body, int client);

private:
    struct Client {
        QLocalSocket* socket = nullptr;
        FrameDecoder decoder;
    };

    void Accept(qintptr descriptor);
    void Read(int client);
    void Write(int client, const std::string& bytes);
    void Tell(int client, const std::string& what) const;

    EventLog& m_log;
    std::unique_ptr<SystemService::Listener> m_listener;
    std::map<int, Client> m_clients;
    int m_lastClient = 0;
    bool m_isFull = false; // and somebody was refused
    bool m_showBodies = false;
};
