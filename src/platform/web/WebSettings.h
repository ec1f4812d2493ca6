#pragma once

#include <QStringList>
#include <QUrl>
#include <chrono>

class AppConfigData;

/// What the web client works by; a copy of the platform configuration that any thread may read.
struct WebSettings {
    static constexpr char NoProxy[] = "direct";

    QString server; ///< base address of the service, such as "https://device.example.com/api"
    QString proxy;  ///< such as "http://proxy:3128"; "direct": none; empty: the system's
    QString caFile; ///< certificates in PEM form that are trusted instead of the system's; empty: those
    QStringList httpHosts; ///< hosts beside the own machine that may be talked to without TLS

    std::chrono::milliseconds silence = std::chrono::seconds(30);       ///< without a byte in any direction
    std::chrono::milliseconds callDeadline = std::chrono::seconds(60);  ///< of a question and its answer
    std::chrono::milliseconds transferDeadline = std::chrono::hours(1); ///< of a file on its way
    std::chrono::milliseconds retryPause =
        std::chrono::milliseconds(500); ///< before the one retry; up to twice it

    /// Reads the configuration. GUI thread.
    static WebSettings From(const AppConfigData& config);

    /// Whether the address may be talked to: by TLS, or without it with the own machine and httpHosts.
    bool Allow(const QUrl& url) const;
};

/// Whether `host` is a name or an address of the own machine.
bool IsLoopback(const QString& host);
