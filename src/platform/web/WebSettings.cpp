#include "platform/web/WebSettings.h"

#include "platform/context/AppConfigData.h"

#include <QHostAddress>
#include <glog/logging.h>

namespace {

constexpr int LongestSeconds = 24 * 60 * 60;

QString Text(const std::string& value) {
    return QString::fromStdString(value).trimmed();
}

/// Without a scheme Qt would take the host for one, and reach nothing.
bool IsProxy(const QString& text) {
    const QUrl url(text);
    return !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("socks5"));
}

std::chrono::seconds Limit(int seconds) {
    return std::chrono::seconds(qBound(1, seconds, LongestSeconds));
}

} // namespace

bool IsLoopback(const QString& host) {
    return host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0 ||
           QHostAddress(host).isLoopback();
}

WebSettings WebSettings::From(const AppConfigData& config) {
    WebSettings settings;
    settings.server = Text(config.webServer);
    settings.proxy = Text(config.webProxy);
    LOG_IF(WARNING,
           !settings.proxy.isEmpty() && settings.proxy != QLatin1String(NoProxy) && !IsProxy(settings.proxy))
        << "WebSettings::From webProxy must be http://HOST:PORT or socks5://HOST:PORT; nothing will be "
           "reached";
    settings.caFile = Text(config.webCaFile);
    for (const QString& host : Text(config.webHttpHosts).split(QLatin1Char(','), Qt::SkipEmptyParts))
        settings.httpHosts.append(host.trimmed());
    settings.silence = Limit(config.webSilenceSeconds);
    settings.callDeadline = Limit(config.webCallSeconds);
    settings.transferDeadline = Limit(config.webTransferSeconds);
    return settings;
}

bool WebSettings::Allow(const QUrl& url) const {
    if (!url.isValid() || url.host().isEmpty() || !url.userInfo().isEmpty())
        return false;
    if (url.scheme() == QLatin1String("https"))
        return true;
    return url.scheme() == QLatin1String("http") &&
           (IsLoopback(url.host()) || httpHosts.contains(url.host(), Qt::CaseInsensitive));
}
