#pragma once

#include "platform/web/WebSettings.h"

#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QSslConfiguration>
#include <optional>

/// How connections of the product are made: by which proxy, and trusting whom. Any thread.
namespace WebTransport {

/// The configured proxy, or else the system's choice; none for the own machine, which plain http must not
/// leave. A system that looks for a proxy's rules in the network takes its time.
class Proxies : public QNetworkProxyFactory {
public:
    explicit Proxies(const QString& configured) : m_configured(configured) {}
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override;

private:
    QString m_configured;
};

/// TLS 1.2 or later, trusting the certificates of the file, or the system's when it is empty; nothing when
/// there is no certificate in the file.
std::optional<QSslConfiguration> Tls(const QString& caFile);

/// Whether an authority beside those that the request names has vouched for the server: some of what Qt
/// builds on take the system's, too. Asked once the connection is encrypted.
bool IsOfAnotherAuthority(const QNetworkReply& reply);

} // namespace WebTransport
