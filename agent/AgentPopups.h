#pragma once

#include "AgentService.h"
#include "entity/AppEntities.h"

/// Pop-up blocking as the agent service knows it: keeps the rules and tells them to every front end, does
/// what the front end's user asks for, and tells in words what was closed and reported.
class AgentPopups : public QObject {
    Q_OBJECT

public:
    /// How a report of the front end's user (key 49) is answered.
    enum class Reply { Success, Failure, None };

    AgentPopups(AgentServer& server, AgentService& service, EventLog& log);

    /// Each is told to the front ends that are connected now and, as a whole list, to every later one. Only
    /// Switch changes whether blocking is on; it is off at the start, and nothing is told before the first
    /// change.
    void SetRules(std::vector<PopupsTypeParams> rules);
    void Change(const PopupsTypeParams& rule, bool isEnabled);
    void Switch(bool isOn);

    void SetReply(Reply reply) { m_reply = reply; }

private:
    void Greet(int client);
    void OnMessage(PipeKey key, const std::string& body, int client);
    void Obey(const SyncPopupsParams& wish);
    void TellAll();

    AgentServer& m_server;
    AgentService& m_service;
    EventLog& m_log;
    SyncPopupsParams m_policy;
    bool m_hasPolicy = false;
    Reply m_reply = Reply::Success;
};
