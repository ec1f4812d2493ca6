#pragma once

#include "AgentServer.h"
#include "entity/FileEntities.h"

#include <QObject>
#include <map>
#include <string>
#include <vector>

/// Held settings, permission switches and live channels as the agent service knows them: tells them to every
/// front end, and takes over and tells in words what the front end's user changes.
class AgentSettings : public QObject {
    Q_OBJECT

public:
    AgentSettings(AgentServer& server, EventLog& log);

    /// Each is told to the front ends that are connected now and to every later one; nothing is told before.
    void Hold(std::vector<std::string> names);
    /// `key` is that of the switch.
    void Switch(PipeKey key, bool isOn);
    void AddChannel(const std::string& name, const std::string& url);
    void RemoveChannels();

private:
    void Greet(int client);
    void OnMessage(PipeKey key, const std::string& body);
    void TellChannels();
    void TakeOver(const LiveChannelRequest& channel);

    AgentServer& m_server;
    EventLog& m_log;
    std::map<PipeKey, std::string> m_told; // the last body of each key
    LiveChannelListRequest m_channels;
    int m_lastChannel = 0;
};
