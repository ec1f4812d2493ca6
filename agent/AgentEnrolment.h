#pragma once

#include "AgentService.h"
#include "EnrolmentStore.h"

#include <map>

struct DeviceBindingParam;

/// The enrolment as the agent service knows it: answers the requests to bind and unbind with the result
/// first and the status after, tells every front end whom the device belongs to, and keeps that in the
/// configuration file.
class AgentEnrolment : public QObject {
    Q_OBJECT

public:
    /// How requests are answered: by what was accepted, always with a failure, or not at all.
    enum class Mode { Normal, Fail, Silent };

    AgentEnrolment(AgentServer& server, AgentService& service, EventLog& log);

    /// Requests with this code and this account succeed from now on, and grant these permissions.
    void Accept(const std::string& code, const std::string& account, std::vector<std::string> permissions);
    void SetMode(Mode mode, const std::string& failure = {});
    /// Time between a request and its answer.
    void SetDelay(double seconds) { m_delayMs = static_cast<int>(seconds * 1000); }

    /// Each happens on the service's side and is told to every front end.
    void Enrol(const Enrolment& enrolment);
    void Unenrol();
    void SetName(const std::string& name);
    void SetTags(const std::vector<std::string>& tags);
    void SetAccount(const std::string& account);

private:
    struct Accepted {
        std::string account;
        std::vector<std::string> permissions;
    };

    void Greet(int client);
    void OnRequest(const std::string& body, int client);
    void Answer(const DeviceBindingParam& request, int client);
    std::string FailureOf(const DeviceBindingParam& request) const;
    void Keep() const;
    void Change(const std::optional<Enrolment>& enrolment);

    AgentServer& m_server;
    AgentService& m_service;
    EventLog& m_log;
    std::map<std::string, Accepted> m_accepted;
    Mode m_mode = Mode::Normal;
    std::string m_failure;
    int m_delayMs = 0;
    std::optional<Enrolment> m_enrolment; // nothing: the device belongs to nobody
};
