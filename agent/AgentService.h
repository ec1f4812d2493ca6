#pragma once

#include "AgentServer.h"
#include "entity/UpdateEntities.h"
#include "platform/application/EndTime.h"
#include "platform/application/IotStatus.h"

#include <QDate>
#include <QObject>
#include <map>
#include <optional>
#include <string>
#include <utility>

/// What the agent service knows and answers. It greets every front end with the password hashes, the link's
/// status and the lock that is in force, and from the start answers the questions for the context and for
/// an update.
class AgentService : public QObject {
    Q_OBJECT

public:
    explicit AgentService(AgentServer& server, const Clock& clock = Clock::System());

    /// The link's status before anybody is connected; not enrolled at first.
    void BeginWith(IotStatus status) { m_status = static_cast<int>(status); }

    /// Each is told to the front ends that are connected now and to every later one.
    void SetStatus(int status);
    void SetUnlockPassword(const std::string& digits);
    void SetUnbindPassword(const std::string& digits);
    /// What is known of updates; also the answer to later questions for them.
    void SetUpdate(const OtaUpdateVersionInfo& update);

    /// From now on every message with the key `question` is answered, to its sender, with this one.
    void SetAnswer(PipeKey question, PipeKey key, const std::string& body) {
        m_answers[question] = {key, body};
    }

    bool Answers(PipeKey question) const { return m_answers.count(question) > 0; }

    /// Locks the screens, until a time of day as "HH:mm" or, when it is none, until they are unlocked. The
    /// lock is in force until its end, ReleaseLock or a front end's ScreenUnlock; one whose end has passed
    /// already is sent and changes nothing.
    void Lock(const std::string& endTime);
    bool HoldsLock() const { return m_lock && Holds(*m_lock); }
    /// Releases the lock with ScreenUnlock or ScreenLockReset.
    void ReleaseLock(PipeKey key);

    /// Locks the system's settings, until this or a front end's SettingsLockUnlock releases them.
    void LockSettings(bool locked);

private:
    /// An end counts for the day of the lock alone.
    struct ScreenLock {
        std::string body;
        EndTime end;
        QDate day;
    };

    void Greet(int client);
    void Answer(PipeKey key, int client);
    bool Holds(const ScreenLock& lock) const;
    std::string StatusBody() const;

    AgentServer& m_server;
    const Clock& m_clock;
    int m_status = static_cast<int>(IotStatus::NotEnrolled);
    std::string m_unlockHash;
    std::string m_unbindHash;
    std::optional<ScreenLock> m_lock;
    bool m_locksSettings = false;
    std::map<PipeKey, std::pair<PipeKey, std::string>> m_answers;
};
