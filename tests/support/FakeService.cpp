#include "support/FakeService.h"

#include "platform/system/SystemPipe.h"

#include <QCoreApplication>
#include <QtTest>

FakeService::FakeService() {
    static int count = 0;
    m_server.setSocketOptions(QLocalServer::UserAccessOption); // Wine knows no owner of a pipe without any
    m_server.listen(QStringLiteral("ryx-test-%1-%2").arg(QCoreApplication::applicationPid()).arg(++count));
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        m_socket = m_server.nextPendingConnection();
        m_decoder.Reset();
        ++m_connections;
        connect(m_socket, &QLocalSocket::readyRead, this, &FakeService::Read);
        connect(m_socket, &QLocalSocket::disconnected, m_socket, &QObject::deleteLater);
    });
}

PipeServer FakeService::Address() const {
    return {m_server.serverName(), SystemPipe::Native().CurrentAccount()};
}

bool FakeService::WaitForClient() {
    return QTest::qWaitFor([this] { return IsConnected(); });
}

void FakeService::Write(const std::string& bytes) {
    m_socket->write(bytes.data(), static_cast<qint64>(bytes.size()));
    m_socket->flush();
}

void FakeService::Drop() {
    if (!m_socket)
        return;
    // On Windows a socket that is closed with bytes still unwritten may use its writer after its end.
    while (m_socket->bytesToWrite() > 0 && m_socket->waitForBytesWritten(1000)) {
    }
    m_socket->disconnectFromServer();
}

void FakeService::StopReading() {
    m_socket->setReadBufferSize(1);
    disconnect(m_socket, &QLocalSocket::readyRead, this, nullptr);
}

FrameDecoder::Frame FakeService::Receive() {
    FrameDecoder::Frame frame;
    if (!QTest::qWaitFor([&] { return m_decoder.Next(frame) == FrameDecoder::Result::Frame; }))
        frame.key = static_cast<PipeKey>(-1);
    return frame;
}

void FakeService::Read() {
    const QByteArray bytes = m_socket->readAll();
    m_receivedBytes += static_cast<std::size_t>(bytes.size());
    m_decoder.Append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}
