#pragma once

#include "EventLog.h"
#include "Program.h"
#include "RestartBackoff.h"

#include <QTimer>
#include <functional>
#include <memory>
#include <string>

/// Keeps a front end running: starts it again whenever it ends, and ends it with this object. Tells each
/// start and end in the event log.
class Supervisor : public QObject {
    Q_OBJECT

public:
    /// The time that has passed since some fixed point.
    using MonotonicTime = std::function<RestartBackoff::Duration()>;

    /// The event log calls the program `name`. While `isUrgent` says so, one that keeps ending is started
    /// again within a second all the same.
    Supervisor(std::unique_ptr<Program> program, const std::string& name, EventLog& log,
               std::function<bool()> isUrgent, MonotonicTime now = SystemTime);
    ~Supervisor() override;

    void Start();

private:
    static RestartBackoff::Duration SystemTime();
    void StartAgain();

    const std::unique_ptr<Program> m_program;
    const std::string m_name;
    EventLog& m_log;
    std::function<bool()> m_isUrgent;
    MonotonicTime m_now;
    QTimer m_restart;
    RestartBackoff m_backoff;
    RestartBackoff::Duration m_startedAt{};
};
