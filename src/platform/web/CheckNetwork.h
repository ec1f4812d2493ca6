#pragma once

#include "platform/web/NetworkProbe.h"

#include <QUrl>

/// What the check of the network looks at, in this order; the last three once for each server.
enum class NetworkStep {
    Adapter,
    Address,
    Gateway,
    Proxy,
    NameResolution,
    SignIn,
    Clock,
    Server,
    Certificate,
    Pipe, ///< to the service on this device, which works without all the others
};

enum class NetworkState { Waiting, Running, Passed, Failed, NotChecked };

/// What a step has found. Those that say what is wrong are failures.
enum class NetworkFinding {
    None,
    AdapterUp, ///< their names
    AdapterNone,
    AddressFound, ///< the addresses
    AddressNone,
    GatewayFound, ///< the addresses
    GatewayNone,
    ProxyNone,
    ProxyReached,    ///< host:port
    ProxyNotFound,   ///< host:port
    ProxyNotReached, ///< host:port
    NameFound,       ///< host, addresses
    NameNotNeeded,   ///< the server is configured by its address
    NameByProxy,
    NameNotFound, ///< host
    SignInNone,
    SignInNeeded, ///< host of the page
    ClockRight,
    ClockWrong,        ///< minutes that it is off
    ClockUnknown,      ///< the server told no time; not checked
    ServerReached,     ///< host:port
    ServerRefused,     ///< host:port
    ServerSilent,      ///< host:port
    ServerByProxy,     ///< host:port
    CertificateGood,   ///< host
    CertificateBad,    ///< host, why
    CertificateUnread, ///< host
    CertificateNone,   ///< the server is talked to without TLS; not checked
    PipeUp,
    PipeDown,
    NoServer,  ///< none is configured; not checked
    Skipped,   ///< a step before has failed; not checked
    Cancelled, ///< not checked
    TimedOut,  ///< a failure
};

struct NetworkResult {
    NetworkStep step = NetworkStep::Pipe;
    QUrl server = {}; ///< that the step is about; empty: none
    NetworkState state = NetworkState::Waiting;
    NetworkFinding finding = NetworkFinding::None;
    QStringList values = {}; ///< of the finding
    qint64 milliseconds = 0; ///< that it took

    /// Notes a finding, and what it makes of the step.
    void Set(NetworkFinding found, const QStringList& of = {});
};

/// Looks step by step for what keeps this device from its organisation's servers. A value that works on
/// copies and shares a probe that never changes; worker threads.
class CheckNetwork {
public:
    /// Servers as "https://HOST[:PORT]", the first of which the steps before Server are about.
    CheckNetwork(WebSettings settings, QVector<QUrl> servers, std::shared_ptr<const NetworkProbe> probe);

    /// The addresses of the configured servers; what is none is left out, with a log line.
    static QVector<QUrl> Servers(const QStringList& configured);

    /// The steps to take, the pipe's as the last one.
    QVector<NetworkResult> Plan() const;

    /// Takes a step other than the pipe's; blocks while it does.
    NetworkResult Take(NetworkResult step, const TaskControl& control) const;

private:
    void Look(NetworkResult& step, const TaskControl& control) const;
    void LookAtAdapters(NetworkResult& step) const;
    void LookAtProxy(NetworkResult& step, const TaskControl& control) const;
    void LookAtName(NetworkResult& step, const TaskControl& control) const;
    void LookForSignIn(NetworkResult& step, const TaskControl& control) const;
    void LookAtClock(NetworkResult& step, const TaskControl& control) const;
    /// Whether a server that takes connections says nothing.
    bool IsMute(const QUrl& server, const TaskControl& control) const;
    void LookAtServer(NetworkResult& step, const TaskControl& control) const;
    void LookAtCertificate(NetworkResult& step, const TaskControl& control) const;

    WebSettings m_settings;
    QVector<QUrl> m_servers;
    std::shared_ptr<const NetworkProbe> m_probe;
};
