// Whom the web client trusts.
#include "platform/web/NetworkProbe.h"
#include "platform/web/RyxWebClient.h"

#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>
#include <future>

namespace {

QString Pem(const char* name) {
    return QStringLiteral(RYX_TLS "/") + QLatin1String(name);
}

/// Answers every request with the address of a file, by TLS, as "localhost".
class TlsServer : public QTcpServer {
public:
    TlsServer() { listen(QHostAddress::LocalHost); }

private:
    void incomingConnection(qintptr handle) override {
        auto* socket = new QSslSocket(this);
        socket->setSocketDescriptor(handle);
        QFile key(Pem("localhost.key"));
        key.open(QIODevice::ReadOnly);
        socket->setPrivateKey(QSslKey(&key, QSsl::Rsa));
        socket->setLocalCertificate(Pem("localhost.pem"));
        connect(socket, &QSslSocket::readyRead, [socket] {
            const QByteArray body = R"({"data": {"fileKey": "k", "downloadUrl": "there"}})";
            socket->write("HTTP/1.1 200 OK\r\nDate: Sun, 06 Nov 1994 08:49:37 GMT\r\nContent-Length: " +
                          QByteArray::number(body.size()) + "\r\n\r\n" + body);
        });
        socket->startServerEncryption();
    }
};

TEST(WebTls, OnlyACertificateOfATrustedAuthorityForThisHostWillDo) {
    TlsServer server;
    RyxWebClient client;
    const struct {
        const char* host;
        QString caFile;
        WebError error;
    } cases[] = {
        {"localhost", Pem("authority.pem"), WebError::None},
        {"localhost", {}, WebError::NotTrusted},
        {"127.0.0.1", Pem("authority.pem"), WebError::NotTrusted},
        {"localhost", Pem("localhost.key"), WebError::NotConfigured},
    };
    for (const auto& row : cases) {
        WebSettings settings;
        settings.server =
            QStringLiteral("https://%1:%2").arg(QLatin1String(row.host)).arg(server.serverPort());
        settings.caFile = row.caFile;
        client.Configure(settings);
        WebFailure failure;
        auto call =
            std::async(std::launch::async, [&] { return client.GetDownloadUrlByFileKey("k", {}, &failure); });
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return call.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }, 10000));
        EXPECT_EQ(call.get(), row.error == WebError::None ? "there" : "") << row.host;
        EXPECT_EQ(static_cast<int>(failure.error), static_cast<int>(row.error)) << row.host << failure.words;
        // The check of the network finds the same, and the server's time in every case.
        const auto answer = NetworkProbe::Native()->Ask(settings, QUrl(settings.server), {});
        EXPECT_EQ(answer.distrust.isEmpty(), row.error == WebError::None) << answer.distrust.toStdString();
        EXPECT_EQ(answer.date.toSecsSinceEpoch(), 784111777);
    }
}

} // namespace
