#include "platform/link/PipeConnection.h"

#include "platform/link/PipeTrust.h"
#include "platform/security/LogText.h"
#include "platform/system/SystemPipe.h"

#include <array>
#include <glog/logging.h>
#include <utility>

namespace {

constexpr qint64 ReadBufferSize = 1024 * 1024;
constexpr int CloseTimeoutMs = 200;

} // namespace

PipeConnection::PipeConnection(PipeExchange& exchange, PipeServer server, const SystemPipe& system)
    : m_exchange(exchange), m_server(std::move(server)), m_system(system) {
    // With a bounded buffer the socket itself stops reading while the GUI thread is behind.
    m_socket.setReadBufferSize(ReadBufferSize);
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &PipeConnection::Open);
    connect(&m_socket, &QLocalSocket::readyRead, this, &PipeConnection::ReadFrames);
    connect(&m_socket, &QLocalSocket::bytesWritten, this,
            [this] { m_exchange.SetUnwritten(static_cast<std::size_t>(m_socket.bytesToWrite())); });
    connect(&m_socket, &QLocalSocket::stateChanged, this, [this](QLocalSocket::LocalSocketState state) {
        if (state == QLocalSocket::UnconnectedState)
            OnDropped();
    });
}

void PipeConnection::Open() {
    const qintptr pipe =
        m_system.Open(m_server.name, [this](const PipePeer& server) { return Accepts(server); });
    if (pipe != -1 && m_socket.setSocketDescriptor(pipe))
        OnConnected();
    else
        Retry();
}

void PipeConnection::Close() {
    m_retry.stop();
    m_socket.disconnect(this);
    FlushPackets();
    m_up = false;
    if (m_socket.bytesToWrite() > 0)
        m_socket.waitForBytesWritten(CloseTimeoutMs);
    m_socket.abort();
}

bool PipeConnection::Accepts(const PipePeer& server) {
    QStringList trusted = m_system.SystemAccounts();
    QString refusal = PipeTrust::Refusal(server, trusted);
    // Looked up only when it counts: a server of the organisation that is away must not keep the link
    // waiting.
    if (!refusal.isEmpty() && !m_server.account.isEmpty()) {
        if (m_accountId.isEmpty())
            m_accountId = m_system.AccountId(m_server.account);
        if (!m_accountId.isEmpty())
            trusted.append(m_accountId);
        refusal = PipeTrust::Refusal(server, trusted);
    }
    if (std::exchange(m_refused, refusal) != refusal && !refusal.isEmpty()) {
        LOG_IF(WARNING, !m_server.account.isEmpty() && m_accountId.isEmpty())
            << "PipeConnection::Accepts knows no account " << LogText(m_server.account);
        LOG(WARNING) << "PipeConnection::Accepts refused " << LogText(m_server.name) << ", which process "
                     << server.process << " serves: " << LogText(refusal)
                     << "; trusted: " << LogText(trusted.join(QStringLiteral(", ")));
    }
    return refusal.isEmpty();
}

void PipeConnection::OnConnected() {
    m_decoder.Reset();
    m_waiting = false;
    m_up = true;
    m_exchange.Open();
    Push(PipeExchange::Event::Kind::Connected);
}

void PipeConnection::OnDropped() {
    if (m_up) {
        // What lies in the socket at its end is little enough to be taken also where reading has paused.
        while (m_socket.isOpen() && m_socket.bytesAvailable() > 0 && ReadSome()) {
        }
        m_up = false;
        if (m_decoder.PendingSize() > 0)
            LOG(WARNING) << "PipeConnection::OnDropped inside a frame: " << m_decoder.PendingSize()
                         << " bytes of it had arrived";
        m_decoder.Reset();
        if (const std::size_t unsent = m_exchange.Close())
            LOG(WARNING) << "PipeConnection::OnDropped with " << unsent << " bytes unsent";
        Push(PipeExchange::Event::Kind::Dropped);
    }
    Retry();
}

void PipeConnection::Retry() {
    if (!m_retry.isActive())
        m_retry.start(m_backoff.Next());
}

void PipeConnection::ReadFrames() {
    while (m_up && m_socket.bytesAvailable() > 0) {
        if (m_exchange.MustPause()) {
            if (!std::exchange(m_waiting, true))
                LOG(WARNING) << "PipeConnection::ReadFrames waits: the service sends faster than "
                                "messages are handled";
            return;
        }
        if (!ReadSome())
            return;
        if (std::exchange(m_waiting, false))
            WritePackets();
    }
}

bool PipeConnection::ReadSome() {
    std::array<char, 64 * 1024> bytes;
    const qint64 count = m_socket.read(bytes.data(), static_cast<qint64>(bytes.size()));
    if (count <= 0)
        return false;
    m_decoder.Append(bytes.data(), static_cast<std::size_t>(count));

    std::vector<PipeExchange::Event> events(1);
    FrameDecoder::Result result;
    while ((result = m_decoder.Next(events.back().frame)) == FrameDecoder::Result::Frame)
        events.emplace_back();
    events.pop_back();
    if (!events.empty()) // a service that only accepts and ends connections is not asked all the time
        m_backoff.Reset();
    Push(std::move(events));
    if (result != FrameDecoder::Result::TooLong)
        return true;
    LOG(ERROR) << "PipeConnection::ReadFrames ends the connection: a frame claims "
               << m_decoder.ClaimedBodySize() << " bytes, the limit is " << RyxPackage::MaxBodySize;
    m_decoder.Reset();
    m_socket.abort();
    return false;
}

void PipeConnection::WritePackets() {
    // A write to a service that has gone closes the socket, with what it had sent before: that is read first.
    if (m_up && !m_waiting && m_socket.waitForReadyRead(0))
        ReadFrames();
    if (!m_waiting)
        FlushPackets();
}

void PipeConnection::FlushPackets() {
    const std::string packets = m_exchange.TakePackets();
    if (!m_up || packets.empty())
        return;
    m_socket.write(packets.data(), static_cast<qint64>(packets.size()));
    m_socket.flush();
    m_exchange.SetUnwritten(static_cast<std::size_t>(m_socket.bytesToWrite()));
}

void PipeConnection::Push(PipeExchange::Event::Kind kind) {
    std::vector<PipeExchange::Event> events(1);
    events.front().kind = kind;
    Push(std::move(events));
}

void PipeConnection::Push(std::vector<PipeExchange::Event>&& events) {
    if (m_exchange.PushEvents(std::move(events)))
        emit EventsReady();
}
