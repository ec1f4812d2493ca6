#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// What the operating system offers a service of its own. Where it has no such thing, or lets others do it,
/// there is nothing to be done. Thread of the event loop, unless said otherwise.
class SystemService {
public:
    /// What the system tells a service, on whatever thread.
    struct Notices {
        std::function<void()> stop;
        std::function<void()> sessionsChanged;
    };

    /// A pipe that is served until this ends.
    struct Listener {
        virtual ~Listener() = default;
    };

    /// A program that runs, and is ended with this.
    struct Program {
        virtual ~Program() = default;
        virtual quint32 Id() const = 0;
    };

    virtual ~SystemService() = default;

    /// Serves the pipe to the people of this machine, who may read and write it and nothing else. `connected`
    /// gets each client's descriptor, for QLocalSocket::setSocketDescriptor. Null, with the reason in
    /// `problem`, when it cannot be served; a pipe that another process serves is left alone.
    virtual std::unique_ptr<Listener> Listen(const QString& pipeName,
                                             const std::function<void(qintptr client)>& connected,
                                             QString& problem) const = 0;

    /// Tells the system, which has started this process as a service, that the service starts. Returns what
    /// went wrong, or an empty text. Where a signal ends a service, it quits the application instead of
    /// `stop`.
    virtual QString BeginService(const Notices& /*notices*/) const { return {}; }
    /// The service has started.
    virtual void TellRunning() const {}
    /// The service has ended. Does nothing when it never began.
    virtual void EndService(int /*exitCode*/) const {}

    /// The sessions in which a user has logged on and this service is to start programs; nothing when the
    /// system does not tell.
    virtual std::optional<std::vector<quint32>> UserSessions() const { return std::vector<quint32>(); }

    /// Starts a program on the user's desktop in the session, with the user's rights and an environment in
    /// which nothing but places comes from the user; other programs of the user cannot open it. `ended` is
    /// called once, unless the result is destroyed before. Null, with the reason in `problem`, when it cannot
    /// be started.
    virtual std::unique_ptr<Program> StartInSession(quint32 /*session*/, const QString& /*program*/,
                                                    const QStringList& /*arguments*/,
                                                    const std::function<void(quint32 exitCode)>& /*ended*/,
                                                    QString& /*problem*/) const {
        return nullptr;
    }

    static const SystemService& Native();
};
