#include "AgentService.h"

#include "entity/IotEntities.h"
#include "entity/SettingsEntities.h"
#include "platform/security/PasswordHelper.h"

AgentService::AgentService(AgentServer& server, const Clock& clock)
    : m_server(server),
      m_clock(clock),
      m_unlockHash(PasswordHelper::HashVelmoraPassword("123456")),
      m_unbindHash(PasswordHelper::HashVelmoraPassword("654321")) {
    SetAnswer(PipeKey::ContextRequest, PipeKey::ContextReply, "velmora-ryx-agent");
    SetAnswer(PipeKey::OtaVersionInfo, PipeKey::OtaVersionInfo, OtaUpdateVersionInfo().WriteToString());
    connect(&m_server, &AgentServer::ClientConnected, this, &AgentService::Greet);
    connect(&m_server, &AgentServer::MessageReceived, this,
            [this](PipeKey key, const std::string&, int client) { Answer(key, client); });
}

void AgentService::Greet(int client) {
    m_server.SendTo(client, PipeKey::UnlockPasswordUpdate, m_unlockHash);
    m_server.SendTo(client, PipeKey::UnbindPasswordUpdate, m_unbindHash);
    m_server.SendTo(client, PipeKey::IotStatusNotify, StatusBody());
    if (HoldsLock())
        m_server.SendTo(client, PipeKey::ScreenLock, m_lock->body);
    if (m_locksSettings)
        m_server.SendTo(client, PipeKey::SettingsLockShow, {});
}

void AgentService::Answer(PipeKey key, int client) {
    if (key == PipeKey::ScreenUnlock)
        m_lock.reset();
    if (key == PipeKey::SettingsLockUnlock)
        m_locksSettings = false;
    if (const auto answer = m_answers.find(key); answer != m_answers.end())
        m_server.SendTo(client, answer->second.first, answer->second.second);
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

void AgentService::SetUpdate(const OtaUpdateVersionInfo& update) {
    const std::string body = update.WriteToString();
    SetAnswer(PipeKey::OtaVersionInfo, PipeKey::OtaVersionInfo, body);
    m_server.Send(PipeKey::OtaVersionInfo, body);
}

void AgentService::Lock(const std::string& endTime) {
    DeviceScreenLock entity;
    entity.endAt = endTime;
    const ScreenLock lock{entity.WriteToString(), EndTime::Parse(endTime).value_or(EndTime()),
                          m_clock.Now().date()};
    if (Holds(lock))
        m_lock = lock;
    m_server.Send(PipeKey::ScreenLock, lock.body);
}

void AgentService::ReleaseLock(PipeKey key) {
    m_lock.reset();
    m_server.Send(key, {});
}

void AgentService::LockSettings(bool locked) {
    m_locksSettings = locked;
    m_server.Send(locked ? PipeKey::SettingsLockShow : PipeKey::SettingsLockHide, {});
}

bool AgentService::Holds(const ScreenLock& lock) const {
    return !lock.end.IsSet() || (m_clock.Now().date() == lock.day && !lock.end.HasPassed(m_clock));
}

std::string AgentService::StatusBody() const {
    IotStatusEntity entity;
    entity.status = m_status;
    return entity.WriteToString();
}
