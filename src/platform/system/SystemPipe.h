#pragma once

#include <QString>

/// The process that serves a connected pipe.
struct PipePeer {
    QString account;       ///< account name; empty when the system would not tell
    bool isSystem = false; ///< runs as the local system account (root on Linux)
};

/// What the operating system knows about named pipes. Any thread.
class SystemPipe {
public:
    virtual ~SystemPipe() = default;

    /// The local name under which `pipeName` (the product's form, "\\.\pipe\name") is served here.
    virtual QString LocalName(const QString& pipeName) const = 0;

    /// Who serves the pipe behind `socket` (QLocalSocket::socketDescriptor() of a connected client).
    virtual PipePeer Server(qintptr socket) const = 0;

    /// The account of this process, in the form that PipePeer::account has.
    virtual QString CurrentAccount() const = 0;

    /// This machine's own back end.
    static const SystemPipe& Native();
};
