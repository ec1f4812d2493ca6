#include "platform/web/CheckNetwork.h"

#include "platform/security/LogText.h"

#include <QHostAddress>
#include <QSet>
#include <glog/logging.h>
#include <utility>

namespace {

constexpr qint64 MostSecondsOff = 5 * 60;
constexpr int NetworkAuthenticationRequired = 511;

using Finding = NetworkFinding;
using Connection = NetworkProbe::Connection;

bool IsHttps(const QUrl& url) {
    return url.scheme() == QLatin1String("https");
}

int PortOf(const QUrl& url) {
    return url.port(IsHttps(url) ? 443 : 80);
}

QString Place(const QString& host, int port) {
    const QString format =
        host.contains(QLatin1Char(':')) ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2");
    return format.arg(host).arg(port);
}

/// What a finding makes of its step.
NetworkState StateOf(Finding finding) {
    static const QSet<int> failures = [] {
        QSet<int> all;
        for (const Finding bad :
             {Finding::AdapterNone, Finding::AddressNone, Finding::GatewayNone, Finding::ProxyNotFound,
              Finding::ProxyNotReached, Finding::NameNotFound, Finding::SignInNeeded, Finding::ClockWrong,
              Finding::ServerRefused, Finding::ServerSilent, Finding::ServerByProxy, Finding::CertificateBad,
              Finding::CertificateUnread, Finding::PipeDown, Finding::TimedOut})
            all.insert(static_cast<int>(bad));
        return all;
    }();
    switch (finding) {
    case Finding::NoServer:
    case Finding::Skipped:
    case Finding::Cancelled:
    case Finding::ClockUnknown:
    case Finding::CertificateNone:
        return NetworkState::NotChecked;
    default:
        return failures.contains(static_cast<int>(finding)) ? NetworkState::Failed : NetworkState::Passed;
    }
}

void SetList(NetworkResult& step, const QStringList& found, Finding some, Finding none) {
    if (found.isEmpty())
        step.Set(none);
    else
        step.Set(some, {found.join(QStringLiteral(", "))});
}

} // namespace

void NetworkResult::Set(NetworkFinding found, const QStringList& of) {
    finding = found;
    values = of;
    state = StateOf(found);
}

CheckNetwork::CheckNetwork(WebSettings settings, QVector<QUrl> servers,
                           std::shared_ptr<const NetworkProbe> probe)
    : m_settings(std::move(settings)), m_servers(std::move(servers)), m_probe(std::move(probe)) {}

QVector<QUrl> CheckNetwork::Servers(const QStringList& configured) {
    QVector<QUrl> servers;
    for (const QString& text : configured) {
        QUrl url(text, QUrl::StrictMode);
        url.setUserInfo({});
        if (!url.host().isEmpty() && (IsHttps(url) || url.scheme() == QLatin1String("http")))
            servers.append(url);
        else
            LOG(WARNING) << "CheckNetwork::Servers leaves out what is no address of a web server: "
                         << LogText(url.toString());
    }
    return servers;
}

QVector<NetworkResult> CheckNetwork::Plan() const {
    QVector<NetworkResult> plan;
    for (const NetworkStep step :
         {NetworkStep::Adapter, NetworkStep::Address, NetworkStep::Gateway, NetworkStep::Proxy,
          NetworkStep::NameResolution, NetworkStep::SignIn, NetworkStep::Clock})
        plan.append({step, m_servers.value(0)});
    for (const QUrl& server : m_servers.isEmpty() ? QVector<QUrl>{QUrl()} : m_servers) {
        plan.append({NetworkStep::Server, server});
        plan.append({NetworkStep::Certificate, server});
    }
    plan.append({NetworkStep::Pipe});
    return plan;
}

NetworkResult CheckNetwork::Take(NetworkResult step, const TaskControl& control) const {
    if (step.step > NetworkStep::Gateway && step.server.isEmpty())
        step.Set(Finding::NoServer);
    else
        Look(step, control);
    if (control.IsCancelled())
        step.Set(Finding::Cancelled);
    return step;
}

void CheckNetwork::Look(NetworkResult& step, const TaskControl& control) const {
    switch (step.step) {
    case NetworkStep::Adapter:
    case NetworkStep::Address:
        return LookAtAdapters(step);
    case NetworkStep::Gateway:
        return SetList(step, m_probe->Gateways(), Finding::GatewayFound, Finding::GatewayNone);
    case NetworkStep::Proxy:
        return LookAtProxy(step, control);
    case NetworkStep::NameResolution:
        return LookAtName(step, control);
    case NetworkStep::SignIn:
        return LookForSignIn(step, control);
    case NetworkStep::Clock:
        return LookAtClock(step, control);
    case NetworkStep::Server:
        return LookAtServer(step, control);
    case NetworkStep::Certificate:
        return LookAtCertificate(step, control);
    case NetworkStep::Pipe:
        break;
    }
}

void CheckNetwork::LookAtAdapters(NetworkResult& step) const {
    QStringList names, addresses;
    for (const NetworkAdapter& adapter : m_probe->Adapters()) {
        names += adapter.name;
        addresses += adapter.addresses;
    }
    if (step.step == NetworkStep::Adapter)
        SetList(step, names, Finding::AdapterUp, Finding::AdapterNone);
    else
        SetList(step, addresses, Finding::AddressFound, Finding::AddressNone);
}

void CheckNetwork::LookAtProxy(NetworkResult& step, const TaskControl& control) const {
    const QNetworkProxy proxy = m_probe->Proxy(m_settings, step.server);
    if (proxy.type() == QNetworkProxy::NoProxy)
        return step.Set(Finding::ProxyNone);
    // A configured one may be written so that it names no host.
    const QString place = proxy.hostName().isEmpty() ? m_settings.proxy.section(QLatin1Char('@'), -1)
                                                     : Place(proxy.hostName(), proxy.port());
    const Connection connection =
        m_probe->Connect(proxy.hostName(), proxy.port(), QNetworkProxy(QNetworkProxy::NoProxy), control);
    step.Set(connection == Connection::Made       ? Finding::ProxyReached
             : connection == Connection::NotFound ? Finding::ProxyNotFound
                                                  : Finding::ProxyNotReached,
             {place});
}

// Where there is a proxy, it looks the names of servers up.
void CheckNetwork::LookAtName(NetworkResult& step, const TaskControl& control) const {
    const QString host = step.server.host();
    if (!QHostAddress(host).isNull())
        return step.Set(Finding::NameNotNeeded);
    if (m_probe->Proxy(m_settings, step.server).type() != QNetworkProxy::NoProxy)
        return step.Set(Finding::NameByProxy);
    const QStringList addresses = m_probe->Resolve(host, control);
    if (addresses.isEmpty())
        step.Set(Finding::NameNotFound, {host});
    else
        step.Set(Finding::NameFound, {host, addresses.join(QStringLiteral(", "))});
}

// A network that wants its users to sign in answers in the server's place where there is no TLS: it sends
// them to a page of its own, or shows that at once, and then has a certificate of another name where there
// is TLS. A server that proves who it is was not answered for, wherever it sends its visitors.
void CheckNetwork::LookForSignIn(NetworkResult& step, const TaskControl& control) const {
    QUrl url = step.server;
    if (IsHttps(url)) {
        url = QUrl();
        url.setScheme(QStringLiteral("http"));
        url.setHost(step.server.host());
        url.setPath(QStringLiteral("/"));
    }
    const NetworkProbe::Answer answer = m_probe->Ask(m_settings, url, control);
    const bool leadsAway = !answer.redirect.isEmpty() && answer.redirect.host() != url.host();
    const bool asksToSignIn = answer.status == NetworkAuthenticationRequired || leadsAway;
    if (!asksToSignIn && answer.status / 100 != 2)
        return step.Set(Finding::SignInNone);
    const NetworkProbe::Answer proof =
        IsHttps(step.server) ? m_probe->Ask(m_settings, step.server, control) : NetworkProbe::Answer();
    const bool isProven = proof.isTls && proof.distrust.isEmpty();
    if (isProven || (!asksToSignIn && !proof.isForOther))
        return step.Set(Finding::SignInNone);
    step.Set(Finding::SignInNeeded, {leadsAway ? answer.redirect.host() : url.host()});
}

void CheckNetwork::LookAtClock(NetworkResult& step, const TaskControl& control) const {
    const QDateTime server = m_probe->Ask(m_settings, step.server, control).date;
    if (!server.isValid())
        return step.Set(Finding::ClockUnknown);
    const qint64 seconds = qAbs(server.secsTo(m_probe->Now()));
    if (seconds > MostSecondsOff)
        step.Set(Finding::ClockWrong, {QString::number(seconds / 60)});
    else
        step.Set(Finding::ClockRight);
}

// One that does not come as far as to speak has trouble with its certificate, which is looked at next.
bool CheckNetwork::IsMute(const QUrl& server, const TaskControl& control) const {
    const NetworkProbe::Answer answer = m_probe->Ask(m_settings, server, control);
    return answer.status == 0 && (answer.isTls || !IsHttps(server));
}

void CheckNetwork::LookAtServer(NetworkResult& step, const TaskControl& control) const {
    const QString host = step.server.host();
    const int port = PortOf(step.server);
    const QNetworkProxy proxy = m_probe->Proxy(m_settings, step.server);
    const QStringList place{Place(host, port)};
    switch (m_probe->Connect(host, port, proxy, control)) {
    case Connection::Made:
        return step.Set(IsMute(step.server, control) ? Finding::ServerSilent : Finding::ServerReached, place);
    case Connection::Refused:
        return step.Set(Finding::ServerRefused, place);
    case Connection::NotFound:
        return step.Set(Finding::NameNotFound, {host});
    case Connection::ProxyRefused:
        return step.Set(Finding::ServerByProxy, place);
    case Connection::Silent:
        break;
    }
    step.Set(proxy.type() == QNetworkProxy::NoProxy ? Finding::ServerSilent : Finding::ServerByProxy, place);
}

void CheckNetwork::LookAtCertificate(NetworkResult& step, const TaskControl& control) const {
    const QString host = step.server.host();
    if (!IsHttps(step.server))
        return step.Set(Finding::CertificateNone);
    const NetworkProbe::Answer answer = m_probe->Ask(m_settings, step.server, control);
    if (!answer.distrust.isEmpty())
        step.Set(Finding::CertificateBad, {host, answer.distrust});
    else
        step.Set(answer.isTls ? Finding::CertificateGood : Finding::CertificateUnread, {host});
}
