#include "AgentEnrolment.h"

#include "entity/EnrollEntities.h"

#include <QTimer>

namespace {

std::string NameBody(const std::string& name) {
    DeviceNameProperty property;
    property.name = name;
    return property.WriteToString();
}

std::string TagsBody(const std::vector<std::string>& tags) {
    DeviceTagsProperty property;
    property.tags = tags;
    return property.WriteToString();
}

std::string AccountBody(const std::string& account) {
    AdminAccountDataNotify notify;
    notify.email = account;
    return notify.WriteToString();
}

} // namespace

AgentEnrolment::AgentEnrolment(AgentServer& server, AgentService& service, EventLog& log)
    : m_server(server), m_service(service), m_log(log), m_enrolment(EnrolmentStore::Read()) {
    Accept("a1b2c3", "admin@lakeside.example", {"location", "screen", "remoteControl"});
    m_service.BeginWith(m_enrolment ? IotStatus::Connected : IotStatus::NotEnrolled);
    connect(&m_server, &AgentServer::ClientConnected, this, &AgentEnrolment::Greet);
    connect(&m_server, &AgentServer::MessageReceived, this,
            [this](PipeKey key, const std::string& body, int client) {
                if (key == PipeKey::Binding && !m_service.Answers(key))
                    OnRequest(body, client);
            });
}

void AgentEnrolment::Accept(const std::string& code, const std::string& account,
                            std::vector<std::string> permissions) {
    m_accepted[code] = {account, std::move(permissions)};
}

void AgentEnrolment::SetMode(Mode mode, const std::string& failure) {
    m_mode = mode;
    m_failure = failure;
}

void AgentEnrolment::Greet(int client) {
    if (!m_enrolment)
        return;
    m_server.SendTo(client, PipeKey::DeviceNameChanged, NameBody(m_enrolment->name));
    m_server.SendTo(client, PipeKey::DeviceTagsChanged, TagsBody(m_enrolment->tags));
    m_server.SendTo(client, PipeKey::AdminAccountChanged, AccountBody(m_enrolment->account));
}

void AgentEnrolment::OnRequest(const std::string& body, int client) {
    DeviceBindingParam request;
    try {
        request.ReadFromString(body);
    } catch (const std::exception& error) {
        m_log.Line(std::string("error: no request: ") + error.what());
    }
    if (m_mode != Mode::Silent)
        QTimer::singleShot(m_delayMs, this, [this, request, client] { Answer(request, client); });
}

std::string AgentEnrolment::FailureOf(const DeviceBindingParam& request) const {
    if (m_mode == Mode::Fail)
        return m_failure;
    if (!request.binding)
        return m_enrolment && request.code == m_enrolment->code && request.email == m_enrolment->account
                   ? ""
                   : "r_802003";
    const auto accepted = m_accepted.find(request.code);
    if (accepted == m_accepted.end())
        return "r_802001";
    return accepted->second.account == request.email ? "" : "r_802002";
}

void AgentEnrolment::Answer(const DeviceBindingParam& request, int client) {
    DeviceBindingResult result;
    result.binding = request.binding;
    result.code = FailureOf(request);
    result.result = result.code.empty();
    if (result.result && request.binding) {
        result.deviceName = request.deviceName;
        result.schoolCode = request.code;
        result.email = request.email;
        result.permissionList = m_accepted[request.code].permissions;
    }
    m_server.SendTo(client, PipeKey::Binding, result.WriteToString());
    if (!result.result)
        return;
    if (request.binding)
        Change(
            Enrolment{request.code, request.email, request.deviceName, request.tags, result.permissionList});
    else
        Change({});
}

void AgentEnrolment::Keep() const {
    if (const QString problem = EnrolmentStore::Write(m_enrolment); !problem.isEmpty())
        m_log.Line("error: the enrolment is not kept: " + problem.toStdString());
}

void AgentEnrolment::Change(const std::optional<Enrolment>& enrolment) {
    m_enrolment = enrolment;
    Keep();
    m_service.SetStatus(static_cast<int>(enrolment ? IotStatus::Connected : IotStatus::NotEnrolled));
}

void AgentEnrolment::Enrol(const Enrolment& enrolment) {
    AutoEnrollParams params;
    params.code = enrolment.code;
    params.adminAccount = enrolment.account;
    params.name = enrolment.name;
    m_server.Send(PipeKey::AutoEnroll, params.WriteToString());
    Change(enrolment);
}

void AgentEnrolment::Unenrol() {
    DeviceBindingResult result;
    result.result = true;
    m_server.Send(PipeKey::DeviceUnenrolled, result.WriteToString());
    Change({});
}

void AgentEnrolment::SetName(const std::string& name) {
    if (m_enrolment)
        m_enrolment->name = name;
    m_server.Send(PipeKey::DeviceNameChanged, NameBody(name));
    if (m_enrolment)
        Keep();
}

void AgentEnrolment::SetTags(const std::vector<std::string>& tags) {
    if (m_enrolment)
        m_enrolment->tags = tags;
    m_server.Send(PipeKey::DeviceTagsChanged, TagsBody(tags));
    if (m_enrolment)
        Keep();
}

void AgentEnrolment::SetAccount(const std::string& account) {
    if (m_enrolment)
        m_enrolment->account = account;
    m_server.Send(PipeKey::AdminAccountChanged, AccountBody(account));
    if (m_enrolment)
        Keep();
}
