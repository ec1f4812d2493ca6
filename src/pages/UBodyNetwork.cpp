#include "pages/UBodyNetwork.h"

#include "widgets/CommonFacts.h"

#include <QNetworkInterface>
#include <QStringList>

namespace {

QString Addresses() {
    QStringList addresses;
    for (const QNetworkInterface& card : QNetworkInterface::allInterfaces()) {
        const auto flags = card.flags();
        if (!flags.testFlag(QNetworkInterface::IsRunning) || flags.testFlag(QNetworkInterface::IsLoopBack))
            continue;
        for (const QNetworkAddressEntry& entry : card.addressEntries())
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol)
                addresses.append(entry.ip().toString());
    }
    return CommonFacts::OrNone(addresses.join(QStringLiteral(", ")));
}

} // namespace

UBodyNetwork::UBodyNetwork(QWidget* parent)
    : UFactsPage({"network", QT_TRANSLATE_NOOP("UBodyNetwork", "network_title"),
                  QT_TRANSLATE_NOOP("UBodyNetwork", "network_sentence"), "",
                  [](const QWidget* page) {
                      return QVector<PageFact>{
                          CommonFacts::LinkState(page),
                          CommonFacts::LocalService(),
                          {QStringLiteral("address"), tr("fact_addresses"), Addresses()},
                      };
                  }},
                 parent) {}
