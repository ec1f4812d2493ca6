#include "platform/context/MachineHelper.h"

#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"

#include <QHostInfo>

std::string MachineHelper::GetDeviceName() {
    const std::string& enrolled = AppContextData::Instance()->deviceName;
    if (!enrolled.empty())
        return enrolled;
    const std::string& configured = AppConfigData::Instance()->deviceName;
    return configured.empty() ? QHostInfo::localHostName().toStdString() : configured;
}
