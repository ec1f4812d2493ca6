#include "widgets/CommonFacts.h"

#include "platform/context/AppContextData.h"
#include "platform/context/MachineHelper.h"
#include "platform/context/Text.h"
#include "platform/web/NetworkProbe.h"
#include "widgets/StatusLook.h"

PageFact CommonFacts::DeviceName() {
    return {QStringLiteral("device"), Text("fact_device_name"),
            QString::fromStdString(MachineHelper::GetDeviceName())};
}

PageFact CommonFacts::LinkState(const QWidget* page) {
    const StatusLook look = StatusLook::InWindowOf(page);
    return {look.icon, Text("fact_management_service"), look.words};
}

PageFact CommonFacts::Organisation() {
    return {QStringLiteral("organisation"), Text("fact_organisation"),
            OrNone(MachineHelper::GetOrganisationName())};
}

PageFact CommonFacts::Addresses() {
    QStringList addresses;
    for (const NetworkAdapter& adapter : NetworkProbe::Native()->Adapters())
        addresses += adapter.addresses;
    return {QStringLiteral("address"), Text("fact_addresses"), OrNone(addresses.join(QStringLiteral(", ")))};
}

QString CommonFacts::Manager() {
    const std::string name = MachineHelper::GetOrganisationName();
    return name.empty() ? Text("organisation_unnamed") : QString::fromStdString(name);
}

QString CommonFacts::OrNone(const QString& text) {
    return text.isEmpty() ? Text("fact_none") : text;
}

QString CommonFacts::OrNone(const std::string& utf8) {
    return OrNone(QString::fromStdString(utf8));
}
