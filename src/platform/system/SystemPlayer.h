#pragma once

class QUrl;

/// The program that the system has for an address of the web or of a stream. GUI thread.
class SystemPlayer {
public:
    virtual ~SystemPlayer() = default;

    /// Opens the address in its program; false when the system has none for it, or refuses.
    virtual bool Open(const QUrl& address) const = 0;

    static const SystemPlayer& Native();
};
