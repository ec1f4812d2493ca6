#include "widgets/CommonFacts.h"

#include "platform/context/AppContextData.h"
#include "platform/context/MachineHelper.h"
#include "platform/context/Text.h"
#include "widgets/StatusLook.h"

PageFact CommonFacts::DeviceName() {
    return {QStringLiteral("device"), Text("fact_device_name"),
            QString::fromStdString(MachineHelper::GetDeviceName())};
}

PageFact CommonFacts::LinkState(const QWidget* page) {
    const StatusLook look = StatusLook::InWindowOf(page);
    return {look.icon, Text("fact_management_service"), look.words};
}

PageFact CommonFacts::LocalService() {
    return {QStringLiteral("service"), Text("fact_local_service"),
            AppContextData::Instance()->Linked() ? Text("fact_service_reached")
                                                 : Text("fact_service_not_reached")};
}

PageFact CommonFacts::Organisation() {
    return {QStringLiteral("organisation"), Text("fact_organisation"),
            OrNone(MachineHelper::GetOrganisationName())};
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
