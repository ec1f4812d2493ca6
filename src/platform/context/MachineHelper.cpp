#include "platform/context/MachineHelper.h"

#include "platform/context/AppContextData.h"

#include <QHostInfo>

std::string MachineHelper::GetDeviceName() {
    const std::string& known = AppContextData::Instance()->deviceName;
    return known.empty() ? QHostInfo::localHostName().toStdString() : known;
}
