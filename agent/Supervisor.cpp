#include "Supervisor.h"

Supervisor::Supervisor(std::unique_ptr<Program> program, const std::string& name, EventLog& log,
                       std::function<bool()> isUrgent, MonotonicTime now)
    : m_program(std::move(program)),
      m_name(name),
      m_log(log),
      m_isUrgent(std::move(isUrgent)),
      m_now(std::move(now)) {
    connect(m_program.get(), &Program::Started, this, [this](qint64 process) {
        m_log.Line(m_name + " started as process " + std::to_string(process));
    });
    connect(m_program.get(), &Program::Ended, this, [this](const std::string& how) {
        m_log.Line(m_name + ' ' + how);
        StartAgain();
    });
    m_restart.setSingleShot(true);
    connect(&m_restart, &QTimer::timeout, this, &Supervisor::Start);
}

Supervisor::~Supervisor() {
    if (const std::string how = m_program->End(); !how.empty())
        m_log.Line(m_name + ' ' + how);
}

void Supervisor::Start() {
    m_startedAt = m_now();
    m_program->Start();
}

RestartBackoff::Duration Supervisor::SystemTime() {
    return std::chrono::duration_cast<RestartBackoff::Duration>(
        std::chrono::steady_clock::now().time_since_epoch());
}

void Supervisor::StartAgain() {
    const RestartBackoff::Duration wait = m_backoff.Next(m_now() - m_startedAt, m_isUrgent());
    if (wait > RestartBackoff::Duration::zero())
        m_log.Line(m_name + " is started again in " +
                   std::to_string(std::chrono::duration_cast<std::chrono::seconds>(wait).count()) + " s");
    m_restart.start(wait);
}
