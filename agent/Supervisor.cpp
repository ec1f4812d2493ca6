#include "Supervisor.h"

#include <string>

namespace {

constexpr int GraceMs = 2500; // the front end takes two seconds at most

} // namespace

Supervisor::Supervisor(const QString& program, const QStringList& arguments, EventLog& log,
                       std::function<bool()> isUrgent, MonotonicTime now)
    : m_log(log), m_isUrgent(std::move(isUrgent)), m_now(std::move(now)) {
    m_process.setProgram(program);
    m_process.setArguments(arguments);
    m_process.setStandardInputFile(QProcess::nullDevice()); // the console's lines are the agent's
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&m_process, &QProcess::started, this,
            [this] { m_log.Line("front end started as process " + std::to_string(m_process.processId())); });
    connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, [this] {
        TellEnd();
        StartAgain();
    });
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return; // `finished` comes, too
        m_log.Line("front end cannot be started: " + m_process.errorString().toStdString());
        StartAgain();
    });
    m_restart.setSingleShot(true);
    connect(&m_restart, &QTimer::timeout, this, &Supervisor::Start);
}

Supervisor::~Supervisor() {
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(GraceMs)) {
        m_process.kill();
        m_process.waitForFinished(GraceMs);
    }
    TellEnd();
}

void Supervisor::Start() {
    m_startedAt = m_now();
    m_process.start();
}

RestartBackoff::Duration Supervisor::SystemTime() {
    return std::chrono::duration_cast<RestartBackoff::Duration>(
        std::chrono::steady_clock::now().time_since_epoch());
}

void Supervisor::TellEnd() const {
    m_log.Line((m_process.exitStatus() == QProcess::CrashExit ? "front end crashed or was killed, code "
                                                              : "front end ended with exit code ") +
               std::to_string(m_process.exitCode()));
}

void Supervisor::StartAgain() {
    const RestartBackoff::Duration wait = m_backoff.Next(m_now() - m_startedAt, m_isUrgent());
    if (wait > RestartBackoff::Duration::zero())
        m_log.Line("front end is started again in " +
                   std::to_string(std::chrono::duration_cast<std::chrono::seconds>(wait).count()) + " s");
    m_restart.start(wait);
}
