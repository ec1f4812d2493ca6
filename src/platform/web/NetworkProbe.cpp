#include "platform/web/NetworkProbe.h"

#include "platform/files/Workers.h"
#include "platform/system/SystemNetwork.h"
#include "platform/web/WebTransport.h"

#include <QEventLoop>
#include <QFutureWatcher>
#include <QHostAddress>
#include <QHostInfo>
#include <QLocale>
#include <QNetworkAccessManager>
#include <QNetworkInterface>
#include <QNetworkReply>
#include <QSslError>
#include <QTcpSocket>
#include <QTimer>

namespace {

constexpr int LookMs = 50;

/// Runs the calling thread's events until somebody calls quit, the time is over, or it is cancelled.
class Wait : public QEventLoop {
public:
    explicit Wait(const TaskControl& control) {
        connect(&m_look, &QTimer::timeout, this, [this, &control] {
            if (control.IsCancelled() || m_deadline.hasExpired())
                quit();
        });
        m_look.start(LookMs);
    }

private:
    QDeadlineTimer m_deadline{NetworkProbe::LimitMs};
    QTimer m_look;
};

NetworkProbe::Connection Meaning(QAbstractSocket::SocketError error) {
    switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
        return NetworkProbe::Connection::Refused;
    case QAbstractSocket::HostNotFoundError:
        return NetworkProbe::Connection::NotFound;
    case QAbstractSocket::ProxyAuthenticationRequiredError:
    case QAbstractSocket::ProxyConnectionRefusedError:
    case QAbstractSocket::ProxyConnectionClosedError:
    case QAbstractSocket::ProxyConnectionTimeoutError:
    case QAbstractSocket::ProxyNotFoundError:
    case QAbstractSocket::ProxyProtocolError:
        return NetworkProbe::Connection::ProxyRefused;
    default:
        return NetworkProbe::Connection::Silent;
    }
}

class NativeProbe final : public NetworkProbe {
public:
    QVector<NetworkAdapter> Adapters() const override {
        QVector<NetworkAdapter> adapters;
        for (const QNetworkInterface& card : QNetworkInterface::allInterfaces()) {
            if (!card.flags().testFlag(QNetworkInterface::IsRunning) ||
                card.flags().testFlag(QNetworkInterface::IsLoopBack))
                continue;
            NetworkAdapter adapter{card.humanReadableName(), {}};
            for (const QNetworkAddressEntry& entry : card.addressEntries())
                if (!entry.ip().isLinkLocal())
                    adapter.addresses += entry.ip().toString();
            adapters.append(adapter);
        }
        return adapters;
    }

    QStringList Gateways() const override { return SystemNetwork::Native().Gateways(); }

    QNetworkProxy Proxy(const WebSettings& settings, const QUrl& url) const override {
        return WebTransport::Proxies(settings.proxy)
            .queryProxy(QNetworkProxyQuery(url))
            .value(0, QNetworkProxy(QNetworkProxy::NoProxy));
    }

    QStringList Resolve(const QString& host, const TaskControl& control) const override {
        Wait wait(control);
        Workers worker(1);
        QFutureWatcher<QHostInfo> lookup;
        QObject::connect(&lookup, &QFutureWatcherBase::finished, &wait, &QEventLoop::quit);
        // This alone asks the system. What it finds is what the connections of the next minute believe.
        lookup.setFuture(worker.Run([host] { return QHostInfo::fromName(host); }, QHostInfo()));
        wait.exec();
        QStringList addresses;
        if (!lookup.isFinished())
            return addresses;
        worker.Join(QDeadlineTimer(LookMs)); // its thread has only to end
        for (const QHostAddress& address : lookup.result().addresses())
            addresses += address.toString();
        return addresses;
    }

    Connection Connect(const QString& host, int port, const QNetworkProxy& proxy,
                       const TaskControl& control) const override {
        if (proxy.type() == QNetworkProxy::NoProxy && QHostAddress(host).isNull() &&
            Resolve(host, control).isEmpty())
            return Connection::NotFound;
        Wait wait(control);
        QTcpSocket socket;
        socket.setProxy(proxy);
        QObject::connect(&socket, &QTcpSocket::stateChanged, &wait, [&] {
            if (socket.state() == QAbstractSocket::ConnectedState ||
                socket.state() == QAbstractSocket::UnconnectedState)
                wait.quit();
        });
        socket.connectToHost(host, static_cast<quint16>(port));
        if (socket.state() != QAbstractSocket::UnconnectedState)
            wait.exec();
        if (socket.state() == QAbstractSocket::ConnectedState)
            return Connection::Made;
        return socket.state() == QAbstractSocket::UnconnectedState ? Meaning(socket.error())
                                                                   : Connection::Silent;
    }

    Answer Ask(const WebSettings& settings, const QUrl& url, const TaskControl& control) const override {
        Answer answer;
        QNetworkRequest request(url);
        request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
        request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
        request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
        if (url.scheme() == QLatin1String("https")) {
            const auto tls = WebTransport::Tls(settings.caFile);
            if (tls)
                request.setSslConfiguration(*tls);
            else
                answer.distrust = QStringLiteral("webCaFile ") + settings.caFile;
        }
        QNetworkAccessManager manager;
        manager.setProxyFactory(new WebTransport::Proxies(settings.proxy)); // which the manager owns
        Wait wait(control);
        const std::unique_ptr<QNetworkReply> reply(manager.get(request));
        QObject::connect(reply.get(), &QNetworkReply::sslErrors, &wait, [&](const QList<QSslError>& errors) {
            for (const QSslError& error : errors) {
                answer.distrust +=
                    (answer.distrust.isEmpty() ? QString() : QStringLiteral("; ")) + error.errorString();
                answer.isForOther |= error.error() == QSslError::HostNameMismatch;
            }
            reply->ignoreSslErrors();
        });
        QObject::connect(reply.get(), &QNetworkReply::encrypted, &wait, [&] {
            answer.isTls = true;
            if (!settings.caFile.isEmpty() && answer.distrust.isEmpty() &&
                WebTransport::IsOfAnotherAuthority(*reply))
                answer.distrust = QStringLiteral("webCaFile ") + settings.caFile;
        });
        QObject::connect(reply.get(), &QNetworkReply::metaDataChanged, &wait, &QEventLoop::quit);
        QObject::connect(reply.get(), &QNetworkReply::finished, &wait, &QEventLoop::quit);
        if (!reply->isFinished())
            wait.exec();
        answer.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        const QUrl target = QUrl::fromEncoded(reply->rawHeader("Location"));
        if (answer.status / 100 == 3 && !target.isEmpty())
            answer.redirect = url.resolved(target);
        answer.date = QLocale::c().toDateTime(QString::fromLatin1(reply->rawHeader("Date")),
                                              QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"));
        answer.date.setTimeSpec(Qt::UTC);
        return answer;
    }

    QDateTime Now() const override { return QDateTime::currentDateTimeUtc(); }
};

} // namespace

std::shared_ptr<const NetworkProbe> NetworkProbe::Native() {
    return std::make_shared<NativeProbe>();
}
