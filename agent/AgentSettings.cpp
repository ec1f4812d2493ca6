#include "AgentSettings.h"

#include "entity/EnrollEntities.h"
#include "entity/SettingsEntities.h"

#include <utility>

namespace {

/// The name of the switch that a key is about; null for every other key.
const char* SwitchName(PipeKey key) {
    switch (key) {
    case PipeKey::LocationSetting:
        return "location";
    case PipeKey::ScreenShotSetting:
        return "screen view";
    case PipeKey::ScreenNotifySetting:
        return "remote control";
    default:
        return nullptr;
    }
}

} // namespace

AgentSettings::AgentSettings(AgentServer& server, EventLog& log) : m_server(server), m_log(log) {
    connect(&m_server, &AgentServer::ClientConnected, this, &AgentSettings::Greet);
    connect(&m_server, &AgentServer::MessageReceived, this, &AgentSettings::OnMessage);
}

void AgentSettings::Greet(int client) {
    for (const auto& [key, body] : m_told)
        m_server.SendTo(client, key, body);
}

void AgentSettings::Hold(std::vector<std::string> names) {
    PermissionInfo info;
    info.keyList = std::move(names);
    m_server.Send(PipeKey::SettingPermission, m_told[PipeKey::SettingPermission] = info.WriteToString());
}

void AgentSettings::Switch(PipeKey key, bool isOn) {
    DeviceSettingNotify state;
    state.status = isOn;
    m_server.Send(key, m_told[key] = state.WriteToString());
    if (key == PipeKey::ScreenShotSetting && !isOn) // every front end takes remote control along
        m_told[PipeKey::ScreenNotifySetting] = m_told[key];
}

void AgentSettings::AddChannel(const std::string& name, const std::string& url) {
    LiveChannelRequest channel;
    channel.id = channel.operationId = ++m_lastChannel;
    channel.name = name;
    channel.url = url;
    m_channels.liveChannelList.push_back(channel);
    TellChannels();
}

void AgentSettings::RemoveChannels() {
    m_channels.liveChannelList.clear();
    TellChannels();
}

void AgentSettings::TellChannels() {
    m_server.Send(PipeKey::LiveChannelList, m_told[PipeKey::LiveChannelList] = m_channels.WriteToString());
}

void AgentSettings::OnMessage(PipeKey key, const std::string& body) {
    if (const char* name = SwitchName(key)) {
        DeviceSettingNotify state;
        state.ReadFromString(body);
        m_told[key] = state.WriteToString();
        m_log.Line(std::string("switched ") + (state.status ? "on: " : "off: ") + name);
    } else if (key == PipeKey::LiveChannelControl) {
        LiveChannelRequest channel;
        channel.ReadFromString(body);
        TakeOver(channel);
    }
}

void AgentSettings::TakeOver(const LiveChannelRequest& channel) {
    for (LiveChannelRequest& known : m_channels.liveChannelList)
        if (known.id == channel.id)
            known.jobStatus = channel.jobStatus;
    m_told[PipeKey::LiveChannelList] = m_channels.WriteToString();
    m_log.Line(std::string("live channel ") + (channel.jobStatus ? "played: " : "stopped: ") +
               std::to_string(channel.id));
}
