#pragma once

#include "platform/web/NetworkProbe.h"

#include <QMap>
#include <QThread>

/// A network in which everything is as it should be, unless its fields say otherwise; they are set before a
/// check begins.
struct ScriptedProbe final : NetworkProbe {
    QVector<NetworkAdapter> adapters{{QStringLiteral("Ethernet"), {QStringLiteral("192.0.2.17")}}};
    QStringList gateways{QStringLiteral("192.0.2.1")};
    QNetworkProxy proxy{QNetworkProxy::NoProxy};
    QStringList addresses{QStringLiteral("198.51.100.7")};
    QMap<QString, Connection> connections; ///< by host; all others are made
    Answer plain;                          ///< of a question without TLS
    Answer encrypted;
    QDateTime now{QDate(2026, 3, 2), QTime(10, 0), Qt::UTC};
    bool hangs = false; ///< names are not resolved before somebody gives up

    ScriptedProbe() {
        plain.status = encrypted.status = 200;
        encrypted.isTls = true;
        encrypted.date = now;
    }

    QVector<NetworkAdapter> Adapters() const override { return adapters; }
    QStringList Gateways() const override { return gateways; }
    QNetworkProxy Proxy(const WebSettings&, const QUrl&) const override { return proxy; }
    QStringList Resolve(const QString&, const TaskControl& control) const override {
        while (hangs && !control.IsCancelled())
            QThread::msleep(1);
        return addresses;
    }
    Connection Connect(const QString& host, int, const QNetworkProxy&, const TaskControl&) const override {
        return connections.value(host, Connection::Made);
    }
    Answer Ask(const WebSettings&, const QUrl& url, const TaskControl&) const override {
        return url.scheme() == QLatin1String("https") ? encrypted : plain;
    }
    QDateTime Now() const override { return now; }
};
