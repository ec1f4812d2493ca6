#pragma once

#include "entity/EnrollEntities.h"
#include "entity/RemoteEntities.h"
#include "platform/link/ControllerBase.h"

/// The platform's controller of link status, wake-up, Wi-Fi and channel messages: the signals through
/// which windows follow them.
class ControllerRyx : public ControllerBase {
    Q_OBJECT

public:
    using ControllerBase::ControllerBase;

signals:
    void IotStatusResponse(IotStatusEntity status);
    void WakeUpServerReponse(const WakeServerInfo& info);
    void DisconnectWifiSsid(std::string ssid);
    void SwitchChannelStatus();
};

Q_DECLARE_METATYPE(std::string)
Q_DECLARE_METATYPE(IotStatusEntity)
Q_DECLARE_METATYPE(WakeServerInfo)
