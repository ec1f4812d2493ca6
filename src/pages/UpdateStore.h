#pragma once

#include "entity/UpdateEntities.h"
#include "platform/application/Clock.h"
#include "platform/link/PipeKey.h"

#include <QDateTime>
#include <QObject>
#include <QTimer>

/// Keeps what the service says of updates of this program, and asks it for them. Lives from start-up, for
/// pages are made later; an unenrolment empties it. GUI thread.
class UpdateStore : public QObject {
    Q_OBJECT

public:
    enum class State {
        Unknown, ///< the service has not said anything
        UpToDate,
        Available,
        Requested, ///< the service was asked to update, and nothing has come of it yet
        Downloading,
        Ready, ///< downloaded; the service installs it
        Failed,
    };

    explicit UpdateStore(const Clock& clock = Clock::System(), QObject* parent = nullptr);

    /// The application object's store; null when it has none.
    static UpdateStore* OfApplication();

    State Current() const { return m_state; }
    /// The version that was told of last, and the last word on its download.
    const OtaUpdateVersionInfo& Version() const { return m_version; }
    const OtaDownloadProgressInfo& Progress() const { return m_progress; }
    /// When the service has last spoken of updates; not valid: never.
    const QDateTime& Told() const { return m_told; }
    /// The link has dropped since, and things may stand otherwise by now.
    bool IsOld() const { return m_isOld; }
    /// The service was asked, or downloads, and for a minute nothing has moved.
    bool HasStalled() const { return m_hasStalled; }
    /// The user has put this version off.
    bool IsPostponed() const { return m_isPostponed; }
    /// Whether the user may choose: the service does some updates by itself.
    bool MayChoose() const { return !m_version.isSilentDownload; }
    /// Whether there is something that the user should see.
    bool WantsAttention() const;

    /// Asks the service for news; false when it is not reached.
    bool Ask() const;
    /// Asks the service to update to the version that it has told of; false when it is not reached, or there
    /// is nothing to ask for.
    bool RequestUpdate();
    /// Nobody is reminded of this version any more. Does nothing when it must be installed.
    void Postpone();

signals:
    void Changed();

private:
    void OnPipeDataReceived(PipeKey key, const std::string& body);
    void OnVersion(const OtaUpdateVersionInfo& version);
    void OnProgress(const OtaDownloadProgressInfo& progress);
    void Enter(State state);
    void Clear();

    const Clock& m_clock;
    State m_state = State::Unknown;
    OtaUpdateVersionInfo m_version;
    OtaDownloadProgressInfo m_progress;
    QDateTime m_told;
    bool m_isOld = false;
    bool m_hasStalled = false;
    bool m_isPostponed = false;
    QTimer m_stallTimer{this};
};
