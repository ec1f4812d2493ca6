#include "platform/context/MachineHelper.h"

#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"

#include <QHostInfo>

std::string MachineHelper::GetDeviceName() {
    const std::string& known = AppContextData::Instance()->DeviceName();
    return known.empty() ? QHostInfo::localHostName().toStdString() : known;
}

std::string MachineHelper::GetOrganisationName() {
    const AppContextData& context = *AppContextData::Instance();
    const std::string& configured = AppConfigData::Instance()->organisation;
    if (!context.Enrolled())
        return {};
    return configured.empty() ? context.SchoolCode() : configured;
}
