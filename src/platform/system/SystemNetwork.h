#pragma once

#include <QStringList>

/// What the operating system knows of the way out of the own network. Any thread.
class SystemNetwork {
public:
    virtual ~SystemNetwork() = default;

    /// The addresses of the default gateways; empty: there is no way out of the own network.
    virtual QStringList Gateways() const = 0;

    static const SystemNetwork& Native();
};
