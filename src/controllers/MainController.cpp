#include "controllers/MainController.h"

#include "entity/EnrollEntities.h"
#include "entity/RemoteEntities.h"
#include "entity/SettingsEntities.h"
#include "platform/context/AppContextData.h"

#include <glog/logging.h>

MainController::MainController() {
    qRegisterMetaType<IotStatusEntity>("IotStatusEntity");
    qRegisterMetaType<std::string>("std::string");
    qRegisterMetaType<WakeServerData>("WakeServerData");
    qRegisterMetaType<WakeServerInfo>("WakeServerInfo");
    qRegisterMetaType<DeviceSettingNotify>("DeviceSettingNotify");
    qRegisterMetaType<AdminAccountDataNotify>("AdminAccountDataNotify");
}

void MainController::OnConnectChanged(bool connected) {
    if (connected) {
        Send(PipeKey::ContextRequest);
        Send(PipeKey::OtaVersionInfo);
    }
    AppContextData::Instance()->SetLinked(connected);
}

void MainController::OnPipeDataReceived(PipeKey key, const std::string& body) {
    switch (key) {
    case PipeKey::ContextReply:
        AppContextData::Instance()->SetContextText(body);
        break;
    case PipeKey::IotStatusNotify: {
        IotStatusEntity status;
        status.ReadFromString(body);
        emit IotStatusResponse(status);
        break;
    }
    case PipeKey::UnlockPasswordUpdate:
        ProcessPasswordUnlock(body);
        break;
    case PipeKey::UnbindPasswordUpdate:
        ProcessPasswordUnbind(body);
        break;
    case PipeKey::WakeUpServer: {
        WakeServerInfo info;
        info.ReadFromString(body);
        emit WakeUpServerReponse(info);
        break;
    }
    case PipeKey::DisconnectWifi:
        emit DisconnectWifiSsid(body);
        break;
    case PipeKey::SwitchChannel:
        emit SwitchChannelStatus();
        break;
    default:
        break;
    }
}

// The two lines print the hash exactly as it was received: it is what administrators compare.
void MainController::ProcessPasswordUnlock(const std::string& body) {
    LOG(INFO) << "MainController::ProcessPasswordUnlock Unlock password update: " << body;
    if (!body.empty())
        AppContextData::Instance()->SetUnlockPassword(body);
}

void MainController::ProcessPasswordUnbind(const std::string& body) {
    LOG(INFO) << "MainController::ProcessPasswordUnbind Unbind password update: " << body;
    if (!body.empty())
        AppContextData::Instance()->SetUnbindPassword(body);
}
