#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

/// Who serves a connected pipe. An account is named by its id: its SID on Windows, its user's number
/// elsewhere.
struct PipePeer {
    quint32 process = 0;          ///< serves it; 0: not told. Another process may have the number by now
    QString owner;                ///< account that the pipe belongs to; empty: not told
    bool inSystemSession = false; ///< the process was in no user's session when it began to serve
    /// Accounts with whose rights the process runs; nothing when the caller may not know.
    std::optional<QStringList> accounts;
};

/// What the operating system knows about named pipes and the accounts behind them. Any thread.
class SystemPipe {
public:
    using Accepts = std::function<bool(const PipePeer& server)>;

    virtual ~SystemPipe() = default;

    /// Connects to the pipe (in the product's form, "\\.\pipe\name") of this machine, without waiting, and
    /// asks `accepts` before a byte goes either way. A descriptor for QLocalSocket::setSocketDescriptor; -1
    /// when nobody serves the pipe, nobody is free to, or `accepts` said no.
    virtual qintptr Open(const QString& pipeName, const Accepts& accepts) const = 0;

    /// The id of the account with this name; of an id, the id itself. Empty when there is none, or the system
    /// cannot tell now. May take as long as a question to a server of the organisation.
    virtual QString AccountId(const QString& account) const = 0;

    /// The ids of the accounts that may do anything on this machine.
    virtual QStringList SystemAccounts() const = 0;

    /// The ids of the accounts with whose rights this process runs.
    virtual QStringList OwnAccounts() const = 0;

    /// The name of this process's account, for people to read.
    virtual QString CurrentAccount() const = 0;

    /// This machine's own back end.
    static const SystemPipe& Native();
};
