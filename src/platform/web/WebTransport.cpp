#include "platform/web/WebTransport.h"

#include <QFile>
#include <QFileInfo>
#include <QSslCertificate>
#include <QSslSocket>

QList<QNetworkProxy> WebTransport::Proxies::queryProxy(const QNetworkProxyQuery& query) {
    if (m_configured == QLatin1String(WebSettings::NoProxy) || IsLoopback(query.peerHostName()))
        return {QNetworkProxy(QNetworkProxy::NoProxy)};
    if (m_configured.isEmpty())
        return systemProxyForQuery(query);
    const QUrl url(m_configured);
    const bool isSocks = url.scheme() == QLatin1String("socks5");
    return {QNetworkProxy(isSocks ? QNetworkProxy::Socks5Proxy : QNetworkProxy::HttpProxy, url.host(),
                          static_cast<quint16>(url.port(isSocks ? 1080 : 8080)), url.userName(),
                          url.password())};
}

std::optional<QSslConfiguration> WebTransport::Tls(const QString& caFile) {
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setProtocol(QSsl::TlsV1_2OrLater);
    tls.setPeerVerifyMode(QSslSocket::VerifyPeer);
    if (!caFile.isEmpty()) {
        // QSslCertificate::fromPath would look through all folders beside a file that is not there.
        QFile file(caFile);
        const QList<QSslCertificate> trusted = QFileInfo(caFile).isFile() && file.open(QIODevice::ReadOnly)
                                                   ? QSslCertificate::fromDevice(&file)
                                                   : QList<QSslCertificate>();
        if (trusted.isEmpty())
            return std::nullopt;
        tls.setCaCertificates(trusted);
    }
    return tls;
}

// Of all that Qt builds on, OpenSSL alone leaves the system's authorities out when it is given others. The
// others tell the chain up to the authority that made it good.
bool WebTransport::IsOfAnotherAuthority(const QNetworkReply& reply) {
    if (QSslSocket::sslLibraryVersionString().startsWith(QLatin1String("OpenSSL")))
        return false;
    const QList<QSslCertificate> chain = reply.sslConfiguration().peerCertificateChain();
    return chain.isEmpty() || !reply.request().sslConfiguration().caCertificates().contains(chain.last());
}
