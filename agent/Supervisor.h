#pragma once

#include "EventLog.h"
#include "RestartBackoff.h"

#include <QObject>
#include <QProcess>
#include <QTimer>
#include <functional>

/// Keeps the front end running: starts it again whenever it ends, and ends it with this object. Tells each
/// start and end in the event log, to whose output the front end itself writes nothing.
class Supervisor : public QObject {
    Q_OBJECT

public:
    /// The time that has passed since some fixed point.
    using MonotonicTime = std::function<RestartBackoff::Duration()>;

    /// While `isUrgent` says so, a front end that keeps ending is started again within a second all the same.
    Supervisor(const QString& program, const QStringList& arguments, EventLog& log,
               std::function<bool()> isUrgent, MonotonicTime now = SystemTime);
    ~Supervisor() override;

    void Start();

private:
    static RestartBackoff::Duration SystemTime();
    void TellEnd() const;
    void StartAgain();

    EventLog& m_log;
    std::function<bool()> m_isUrgent;
    MonotonicTime m_now;
    QProcess m_process;
    QTimer m_restart;
    RestartBackoff m_backoff;
    RestartBackoff::Duration m_startedAt{};
};
