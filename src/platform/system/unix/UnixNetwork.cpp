#include "platform/system/SystemNetwork.h"

#include <QByteArrayList>
#include <QFile>
#include <QHostAddress>
#include <QVector>
#include <QtEndian>

namespace {

constexpr int UsedGateway = 0x3; // the route is up, and leads to a gateway

/// The lines of a table of the kernel, cut into fields.
QVector<QList<QByteArray>> Table(const char* path) {
    QVector<QList<QByteArray>> rows;
    QFile file(QString::fromLatin1(path));
    if (file.open(QIODevice::ReadOnly))
        for (const QByteArray& line : file.readAll().split('\n'))
            rows.append(line.simplified().split(' '));
    return rows;
}

bool LeadsToGateway(const QByteArray& flags) {
    return (flags.toInt(nullptr, 16) & UsedGateway) == UsedGateway;
}

class UnixNetwork final : public SystemNetwork {
public:
    QStringList Gateways() const override {
        QStringList gateways;
        // Interface, destination, gateway, flags, …; addresses in the machine's byte order.
        for (const QList<QByteArray>& row : Table("/proc/net/route"))
            if (row.value(1) == "00000000" && LeadsToGateway(row.value(3)))
                gateways += QHostAddress(qFromBigEndian(row[2].toUInt(nullptr, 16))).toString();
        // Destination, its bits, source, its bits, next hop, metric, references, use, flags, interface.
        for (const QList<QByteArray>& row : Table("/proc/net/ipv6_route"))
            if (row.value(1) == "00" && LeadsToGateway(row.value(8)))
                gateways += QHostAddress(reinterpret_cast<const quint8*>(
                                             QByteArray::fromHex(row[4]).leftJustified(16).constData()))
                                .toString();
        gateways.removeDuplicates();
        return gateways;
    }
};

} // namespace

const SystemNetwork& SystemNetwork::Native() {
    static const UnixNetwork network;
    return network;
}
