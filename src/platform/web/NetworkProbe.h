#pragma once

#include "platform/files/TaskControl.h"
#include "platform/web/WebSettings.h"

#include <QDateTime>
#include <QNetworkProxy>
#include <QStringList>
#include <QVector>
#include <memory>

/// A network adapter that is up, the own machine's loop left out.
struct NetworkAdapter {
    QString name;
    QStringList addresses; ///< without those that the machine has made up for itself

    bool operator==(const NetworkAdapter& other) const {
        return name == other.name && addresses == other.addresses;
    }
};

/// What the check of the network asks of the machine and of the network. The calls block for as long as a
/// step may take, and end early when they are cancelled; worker threads.
class NetworkProbe {
public:
    /// Time of one call that goes over the network; a little less than a step has.
    static constexpr int LimitMs = 4500;

    enum class Connection {
        Made,
        Refused,      ///< nothing listens there
        NotFound,     ///< the name is not known
        ProxyRefused, ///< the proxy does not let it through
        Silent,       ///< no answer, for whatever reason
    };
    struct Answer {
        int status = 0;          ///< 0: there was no answer
        QUrl redirect;           ///< absolute; empty: none
        QDateTime date;          ///< of the server's clock; not valid: it told none
        bool isTls = false;      ///< the connection was encrypted
        QString distrust;        ///< what is wrong with the server's certificate; empty: nothing
        bool isForOther = false; ///< the certificate is that of another host
    };

    virtual ~NetworkProbe() = default;

    virtual QVector<NetworkAdapter> Adapters() const = 0;
    virtual QStringList Gateways() const = 0;
    /// By which proxy this address is reached.
    virtual QNetworkProxy Proxy(const WebSettings& settings, const QUrl& url) const = 0;
    /// The addresses of a host; empty: its name is not known.
    virtual QStringList Resolve(const QString& host, const TaskControl& control) const = 0;
    virtual Connection Connect(const QString& host, int port, const QNetworkProxy& proxy,
                               const TaskControl& control) const = 0;
    /// Asks a web server for a page and hangs up once it answers; what it sends elsewhere is not followed.
    /// Its certificate is looked at, and makes no difference.
    virtual Answer Ask(const WebSettings& settings, const QUrl& url, const TaskControl& control) const = 0;
    virtual QDateTime Now() const = 0;

    /// The machine's own.
    static std::shared_ptr<const NetworkProbe> Native();
};
