#include "AgentPopups.h"

#include "entity/IotEntities.h"
#include "platform/application/PopupWindow.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char Failure[] = "1";

/// On one line, whatever the other program has put into it.
std::string OneLine(const std::string& text) {
    return QString::fromStdString(text).simplified().toStdString();
}

std::string InWords(const UploadPopupsParams& report) {
    return OneLine(report.appName) + " \"" + OneLine(report.popName) + "\", class " +
           OneLine(report.popClassName) + ", product \"" + OneLine(report.popProductName) + "\", in " +
           OneLine(report.popDirectory);
}

} // namespace

AgentPopups::AgentPopups(AgentServer& server, AgentService& service, EventLog& log)
    : m_server(server), m_service(service), m_log(log) {
    connect(&m_server, &AgentServer::ClientConnected, this, &AgentPopups::Greet);
    connect(&m_server, &AgentServer::MessageReceived, this, &AgentPopups::OnMessage);
}

void AgentPopups::Greet(int client) {
    if (m_hasPolicy)
        m_server.SendTo(client, PipeKey::PopupPolicy, m_policy.WriteToString());
}

void AgentPopups::SetRules(std::vector<PopupsTypeParams> rules) {
    m_policy.popupsDetails = std::move(rules);
    TellAll();
}

void AgentPopups::Switch(bool isOn) {
    m_policy.popStatus = isOn;
    TellAll();
}

void AgentPopups::TellAll() {
    m_hasPolicy = true;
    m_server.Send(PipeKey::PopupPolicy, m_policy.WriteToString());
}

void AgentPopups::Change(const PopupsTypeParams& rule, bool isEnabled) {
    std::vector<PopupsTypeParams>& rules = m_policy.popupsDetails;
    const QString identity = PopupWindow::Of(rule).Identity();
    const auto same = std::find_if(rules.begin(), rules.end(), [&](const PopupsTypeParams& other) {
        return PopupWindow::Of(other).Identity() == identity;
    });
    if (same != rules.end())
        rules.erase(same);
    if (isEnabled)
        rules.push_back(rule);
    m_hasPolicy = true;
    SyncPopupsParams change;
    change.popStatus = m_policy.popStatus;
    change.hasOne = true;
    change.enable = isEnabled;
    change.popupsDetails = {rule};
    m_server.Send(PipeKey::PopupPolicy, change.WriteToString());
}

void AgentPopups::OnMessage(PipeKey key, const std::string& body, int client) {
    UploadPopupsParams report;
    if (key == PipeKey::PopupDetected || key == PipeKey::PopupBlockResult)
        report.ReadFromString(body);
    if (key == PipeKey::PopupDetected)
        m_log.Line("pop-up closed: " + InWords(report));
    if (key == PipeKey::PopupBlockResult) {
        m_log.Line("pop-up reported: " + InWords(report));
        if (m_reply == Reply::None || m_service.Answers(key))
            return;
        ErrorInfo reply;
        reply.code = m_reply == Reply::Success ? "0" : Failure;
        m_server.SendTo(client, key, reply.WriteToString());
    }
    if (key == PipeKey::FeaturesPopupsCommand && !m_service.Answers(key)) {
        SyncPopupsParams wish;
        wish.ReadFromString(body);
        Obey(wish);
    }
}

// A single rule is to be dropped or taken back; without one, blocking is to go on or off.
void AgentPopups::Obey(const SyncPopupsParams& wish) {
    if (!wish.hasOne)
        Switch(wish.popStatus);
    else if (!wish.popupsDetails.empty())
        Change(wish.popupsDetails.front(), wish.enable);
}
