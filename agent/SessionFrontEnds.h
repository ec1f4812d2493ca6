#pragma once

#include "Supervisor.h"
#include "platform/system/SystemService.h"

#include <QStringList>
#include <map>
#include <memory>

/// Keeps one front end running in each session in which a user has logged on, and ends them with this object.
class SessionFrontEnds {
public:
    SessionFrontEnds(const SystemService& system, const QString& program, const QStringList& arguments,
                     EventLog& log, std::function<bool()> isUrgent);

    /// Looks which sessions there are: when the service starts, and whenever that may have changed.
    void Update();

private:
    const SystemService& m_system;
    const QString m_program;
    const QStringList m_arguments;
    EventLog& m_log;
    const std::function<bool()> m_isUrgent;
    std::map<quint32, std::unique_ptr<Supervisor>> m_supervisors; // by session
};
