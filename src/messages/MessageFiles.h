#pragma once

#include "messages/FileFetch.h"
#include "messages/MessageHistory.h"
#include "platform/files/Workers.h"

#include <QHash>
#include <QTimer>
#include <atomic>
#include <memory>

/// A message's file on its way to this device.
struct MessageFile {
    enum class Stage { Absent, Loading, Saved, Failed };

    Stage stage = Stage::Absent;
    int percent = 0; ///< while loading
    FileFetchOutcome outcome;
    QImage picture;        ///< what the file shows, while it is looked at; null when it is no picture
    FileFetchOutcome copy; ///< the last one that was wished for
};

/// Fetches the files of messages on threads of its own, and keeps in the history where they are. What is on
/// the disk waits for no download. What still runs at the end of the program is cancelled, and left behind if
/// it does not end soon. GUI thread.
class MessageFiles : public QObject {
    Q_OBJECT

public:
    /// Files go to `folder`; none may be larger than `maxBytes`.
    MessageFiles(MessageHistory& history, const QString& folder, std::int64_t maxBytes);
    ~MessageFiles() override;

    /// Brings the message's file, unless it is there or on its way.
    void Fetch(int id);
    void Cancel(int id);
    /// The message is no more; its file stays if it is there.
    void Forget(int id);
    MessageFile Of(int id) const;
    /// The one message whose file the user sees; 0: none.
    void LookAt(int id);

    /// Copies the saved file to `target` without overwriting anything.
    void CopyTo(int id, const QString& target);

signals:
    void Changed(int id);

private:
    struct Job {
        MessageFile file;
        Cancellation cancellation;
        std::shared_ptr<std::atomic_int> percent = std::make_shared<std::atomic_int>(0);
    };

    template <class Work, class Then>
    void Run(Workers& workers, Work work, const std::invoke_result_t<Work>& failed, Then then);
    void Download(int id);
    void Settle(int id, const FileFetchOutcome& outcome);
    void FindPicture();
    void TellProgress();

    MessageHistory& m_history;
    QString m_folder;
    std::int64_t m_maxBytes;
    Workers m_downloaders{2};
    Workers m_disk{1};
    QHash<int, Job> m_jobs;
    int m_lookedAt = 0;
    QTimer m_progress{this};
};
