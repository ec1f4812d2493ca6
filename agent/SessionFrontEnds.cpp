#include "SessionFrontEnds.h"

#include <algorithm>

namespace {

constexpr quint32 FirstCrashCode = 0x80000000; // with which the system ends a program

class LaunchedInSession : public Program {
public:
    LaunchedInSession(const SystemService& system, quint32 session, const QString& program,
                      const QStringList& arguments)
        : m_system(system), m_session(session), m_program(program), m_arguments(arguments) {}

    void Start() override {
        m_ended = false;
        QString problem;
        m_running = m_system.StartInSession(
            m_session, m_program, m_arguments, [this](quint32 exitCode) { OnEnded(exitCode); }, problem);
        if (m_running)
            emit Started(m_running->Id());
        else
            emit Ended("cannot be started: " + problem.toStdString());
    }

    std::string End() override {
        const bool runs = m_running && !m_ended;
        m_running.reset();
        return runs ? "was ended" : std::string();
    }

private:
    void OnEnded(quint32 exitCode) {
        m_ended = true; // what tells of it must outlive that
        emit Ended((exitCode >= FirstCrashCode ? "crashed or was killed, code " : "ended with exit code ") +
                   std::to_string(exitCode));
    }

    const SystemService& m_system;
    const quint32 m_session;
    const QString m_program;
    const QStringList m_arguments;
    std::unique_ptr<SystemService::Program> m_running;
    bool m_ended = false;
};

} // namespace

SessionFrontEnds::SessionFrontEnds(const SystemService& system, const QString& program,
                                   const QStringList& arguments, EventLog& log,
                                   std::function<bool()> isUrgent)
    : m_system(system),
      m_program(program),
      m_arguments(arguments),
      m_log(log),
      m_isUrgent(std::move(isUrgent)) {}

void SessionFrontEnds::Update() {
    const std::optional<std::vector<quint32>> sessions = m_system.UserSessions();
    if (!sessions)
        return;
    for (auto supervisor = m_supervisors.begin(); supervisor != m_supervisors.end();)
        supervisor = std::count(sessions->begin(), sessions->end(), supervisor->first) == 0
                         ? m_supervisors.erase(supervisor)
                         : std::next(supervisor);
    for (const quint32 session : *sessions) {
        std::unique_ptr<Supervisor>& supervisor = m_supervisors[session];
        if (supervisor)
            continue;
        supervisor = std::make_unique<Supervisor>(
            std::make_unique<LaunchedInSession>(m_system, session, m_program, m_arguments),
            "front end of session " + std::to_string(session), m_log, m_isUrgent);
        supervisor->Start();
    }
}
