#include "LaunchedProgram.h"

namespace {

constexpr int GraceMs = 2500; // the front end takes two seconds at most

} // namespace

LaunchedProgram::LaunchedProgram(const QString& program, const QStringList& arguments) {
    m_process.setProgram(program);
    m_process.setArguments(arguments);
    m_process.setStandardInputFile(QProcess::nullDevice()); // the console's lines are the agent's
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&m_process, &QProcess::started, this, [this] { emit Started(m_process.processId()); });
    connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this] { emit Ended(TellEnd()); });
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) // for the others `finished` comes, too
            emit Ended("cannot be started: " + m_process.errorString().toStdString());
    });
}

std::string LaunchedProgram::End() {
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning)
        return {};
    m_process.terminate();
    if (!m_process.waitForFinished(GraceMs)) {
        m_process.kill();
        m_process.waitForFinished(GraceMs);
    }
    return TellEnd();
}

std::string LaunchedProgram::TellEnd() const {
    return (m_process.exitStatus() == QProcess::CrashExit ? "crashed or was killed, code "
                                                          : "ended with exit code ") +
           std::to_string(m_process.exitCode());
}
