#include "AgentServer.h"

#include "KeyText.h"

#include <QLocalSocket>
#include <utility>

namespace {

constexpr int FlushTimeoutMs = 1000;
constexpr std::size_t ShownBodySize = 400;

std::string SizeText(std::size_t size) {
    return std::to_string(size) + " bytes";
}

/// The body on one line: white space is one blank, everything unprintable a dot.
std::string OneLine(const std::string& body) {
    std::string line;
    for (const char character : body) {
        const auto code = static_cast<unsigned char>(character);
        const bool blank = character == ' ' || (code >= '\t' && code <= '\r');
        if (blank && !line.empty() && line.back() == ' ')
            continue;
        line += blank ? ' ' : code < ' ' || code == 0x7f ? '.' : character;
        if (line.size() == ShownBodySize)
            return line + "...";
    }
    return line;
}

} // namespace

AgentServer::AgentServer(EventLog& log) : m_log(log) {}

AgentServer::~AgentServer() {
    m_listener.reset();
    for (auto& [number, client] : m_clients) {
        client.socket->disconnect(this);
        if (client.socket->bytesToWrite() > 0)
            client.socket->waitForBytesWritten(FlushTimeoutMs);
    }
}

QString AgentServer::Listen(const QString& pipeName) {
    QString problem;
    m_listener = SystemService::Native().Listen(
        pipeName, [this](qintptr descriptor) { Accept(descriptor); }, problem);
    if (m_listener)
        m_log.Line("listening on " + pipeName.toStdString());
    return problem;
}

void AgentServer::Accept(qintptr descriptor) {
    auto* socket = new QLocalSocket(this);
    if (!socket->setSocketDescriptor(descriptor) || socket->state() != QLocalSocket::ConnectedState) {
        delete socket;
        return;
    }
    if (m_clients.size() == MostClients) {
        if (!std::exchange(m_isFull, true)) // whoever tries again all the time does not fill the log
            m_log.Line("no more clients are served than " + std::to_string(MostClients));
        delete socket;
        return;
    }
    const int number = ++m_lastClient;
    m_clients[number].socket = socket;
    connect(socket, &QLocalSocket::readyRead, this, [this, number] { Read(number); });
    connect(socket, &QLocalSocket::disconnected, this, [this, number, socket] {
        Read(number); // what arrived with the end
        socket->deleteLater();
        if (m_clients.erase(number) == 0)
            return;
        m_isFull = false;
        Tell(number, "disconnected");
        emit ClientGone(number);
    });
    Tell(number, "connected");
    emit ClientConnected(number);
    Read(number);
}

void AgentServer::Read(int client) {
    // Looked up for every message: a receiver may have dropped the client meanwhile.
    auto found = m_clients.find(client);
    if (found == m_clients.end() || found->second.socket->bytesAvailable() == 0)
        return;
    const QByteArray bytes = found->second.socket->readAll();
    found->second.decoder.Append(bytes.constData(), static_cast<std::size_t>(bytes.size()));

    FrameDecoder::Frame frame;
    for (; found != m_clients.end(); found = m_clients.find(client)) {
        const FrameDecoder::Result result = found->second.decoder.Next(frame);
        if (result == FrameDecoder::Result::Incomplete)
            return;
        if (result == FrameDecoder::Result::TooLong) {
            Tell(client, "sent a frame of " + SizeText(found->second.decoder.ClaimedBodySize()) +
                             ", more than is allowed");
            found->second.decoder.Reset();
            found->second.socket->abort();
            return;
        }
        Tell(client, "received " + KeyText(frame.key) + ' ' + SizeText(frame.body.size()) +
                         (m_showBodies && !frame.body.empty() ? ": " + OneLine(frame.body) : std::string()));
        emit MessageReceived(frame.key, frame.body, client);
    }
}

void AgentServer::Send(PipeKey key, const std::string& body) {
    if (m_clients.empty())
        m_log.Line("nobody is connected to be sent " + KeyText(key));
    for (const int client : Clients())
        SendTo(client, key, body);
}

void AgentServer::SendTo(int client, PipeKey key, const std::string& body) {
    const std::string packet = RyxPackage::PackageData(key, body);
    if (packet.empty()) {
        m_log.Line("not sent " + KeyText(key) + ' ' + SizeText(body.size()) + ", more than is allowed");
        return;
    }
    if (m_clients.count(client) == 0)
        return;
    Tell(client, "was sent " + KeyText(key) + ' ' + SizeText(body.size()));
    Write(client, packet);
}

void AgentServer::SendBytes(const std::string& bytes) {
    for (const int client : Clients()) {
        Tell(client, "was sent " + SizeText(bytes.size()) + " as they stand");
        Write(client, bytes);
    }
}

void AgentServer::Write(int client, const std::string& bytes) {
    const auto found = m_clients.find(client);
    if (found == m_clients.end())
        return;
    QLocalSocket* socket = found->second.socket;
    socket->write(bytes.data(), static_cast<qint64>(bytes.size()));
    socket->flush();
    if (socket->bytesToWrite() > UnreadLimit) {
        Tell(client, "does not read what is sent");
        socket->abort();
    }
}

void AgentServer::DropClients() {
    for (const int client : Clients())
        if (const auto found = m_clients.find(client); found != m_clients.end()) {
            // On Windows a socket that is closed with bytes still unwritten may use its writer after its end.
            QLocalSocket* socket = found->second.socket;
            while (socket->bytesToWrite() > 0 && socket->waitForBytesWritten(FlushTimeoutMs)) {
            }
            if (socket->bytesToWrite() > 0)
                socket->abort();
            else
                socket->disconnectFromServer();
        }
}

std::vector<int> AgentServer::Clients() const {
    std::vector<int> numbers;
    for (const auto& [number, client] : m_clients)
        numbers.push_back(number);
    return numbers;
}

void AgentServer::Tell(int client, const std::string& what) const {
    m_log.Line("client " + std::to_string(client) + ' ' + what);
}
