#include "AgentService.h"

#include "entity/IotEntities.h"
#include "entity/SettingsEntities.h"
#include "platform/context/ProductConstants.h"
#include "platform/security/PasswordHelper.h"

AgentService::AgentService(AgentServer& server)
    : m_server(server),
      m_unlockHash(PasswordHelper::HashVelmoraPassword("123456")),
      m_unbindHash(PasswordHelper::HashVelmoraPassword("654321")) {
    m_update.name = Product::Name;
    connect(&m_server, &AgentServer::ClientConnected, this, &AgentService::Greet);
    connect(&m_server, &AgentServer::MessageReceived, this,
            [this](PipeKey key, const std::string&, int client) { Answer(key, client); });
}

void AgentService::Greet(int client) {
    m_server.SendTo(client, PipeKey::UnlockPasswordUpdate, m_unlockHash);
    m_server.SendTo(client, PipeKey::UnbindPasswordUpdate, m_unbindHash);
    m_server.SendTo(client, PipeKey::IotStatusNotify, StatusBody());
}

void AgentService::Answer(PipeKey key, int client) {
    if (key == PipeKey::ContextRequest)
        m_server.SendTo(client, PipeKey::ContextReply, m_context);
    else if (key == PipeKey::OtaVersionInfo)
        m_server.SendTo(client, PipeKey::OtaVersionInfo, m_update.WriteToString());
}

void AgentService::SetStatus(int status) {
    m_status = status;
    m_server.Send(PipeKey::IotStatusNotify, StatusBody());
}

void AgentService::SetUnlockPassword(const std::string& digits) {
    m_unlockHash = PasswordHelper::HashVelmoraPassword(digits);
    m_server.Send(PipeKey::UnlockPasswordUpdate, m_unlockHash);
}

void AgentService::SetUnbindPassword(const std::string& digits) {
    m_unbindHash = PasswordHelper::HashVelmoraPassword(digits);
    m_server.Send(PipeKey::UnbindPasswordUpdate, m_unbindHash);
}

void AgentService::SetUpdate(const std::string& version) {
    m_update.hasUpdate = !version.empty();
    m_update.versionCode = version;
    m_server.Send(PipeKey::OtaVersionInfo, m_update.WriteToString());
}

void AgentService::Lock(const std::string& endTime) {
    DeviceScreenLock lock;
    lock.endAt = endTime;
    m_server.Send(PipeKey::ScreenLock, lock.WriteToString());
}

std::string AgentService::StatusBody() const {
    IotStatusEntity entity;
    entity.status = m_status;
    return entity.WriteToString();
}
