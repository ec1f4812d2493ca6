#include "messages/MessageFiles.h"

#include <QFileInfo>
#include <QFutureWatcher>

namespace {

constexpr int ProgressMs = 100;
constexpr int EndMs = 400; // cancelled work ends within a tenth of a second

} // namespace

MessageFiles::MessageFiles(MessageHistory& history, const QString& folder, std::int64_t maxBytes)
    : m_history(history), m_folder(folder), m_maxBytes(maxBytes) {
    m_progress.setInterval(ProgressMs);
    connect(&m_progress, &QTimer::timeout, this, &MessageFiles::TellProgress);
}

MessageFiles::~MessageFiles() {
    for (const Job& job : qAsConst(m_jobs))
        job.cancellation.Cancel();
    const QDeadlineTimer end(EndMs);
    m_downloaders.Join(end);
    m_disk.Join(end);
}

template <class Work, class Then>
void MessageFiles::Run(Workers& workers, Work work, const std::invoke_result_t<Work>& failed, Then then) {
    auto* watcher = new QFutureWatcher<std::invoke_result_t<Work>>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [watcher, then] {
        watcher->deleteLater();
        then(watcher->result());
    });
    watcher->setFuture(workers.Run(work, failed));
}

void MessageFiles::Fetch(int id) {
    const Message* message = m_history.Find(id);
    const MessageFile::Stage stage = m_jobs.value(id).file.stage;
    if (!message || !message->HasFile() || stage == MessageFile::Stage::Loading ||
        stage == MessageFile::Stage::Saved)
        return;
    Job job;
    job.file.stage = MessageFile::Stage::Loading;
    m_jobs[id] = job;
    if (const QString saved = message->savedAs; saved.isEmpty())
        Download(id);
    else
        Run(
            m_disk, [saved] { return QFileInfo(saved).isFile(); }, false,
            [this, id, saved, cancellation = job.cancellation](bool isThere) {
                if (cancellation.IsCancelled())
                    return;
                if (isThere)
                    Settle(id, {saved});
                else
                    Download(id);
            });
    emit Changed(id);
}

void MessageFiles::Download(int id) {
    const Message* message = m_history.Find(id);
    if (!message)
        return;
    const Job job = m_jobs.value(id);
    const TaskControl control{job.cancellation,
                              [percent = job.percent](std::int64_t done, std::int64_t total) {
                                  if (total > 0)
                                      *percent = static_cast<int>(done * 100 / total);
                              }};
    const FileFetchRequest request{message->file, m_folder, m_maxBytes};
    m_progress.start();
    Run(
        m_downloaders, [request, control] { return FetchFile(request, control); },
        {{}, WebError::Internal, false},
        [this, id, cancellation = job.cancellation](const FileFetchOutcome& outcome) {
            if (cancellation.IsCancelled())
                return;
            if (!outcome.path.isEmpty())
                m_history.SetSavedAs(id, outcome.path);
            Settle(id, outcome);
        });
}

void MessageFiles::Settle(int id, const FileFetchOutcome& outcome) {
    MessageFile& file = m_jobs[id].file;
    file.outcome = outcome;
    file.stage = outcome.path.isEmpty() ? MessageFile::Stage::Failed : MessageFile::Stage::Saved;
    if (id == m_lookedAt)
        FindPicture();
    emit Changed(id);
}

// A picture takes megabytes, and many messages may wait: it is kept for the one that is on screen.
void MessageFiles::LookAt(int id) {
    if (id == m_lookedAt)
        return;
    if (const auto before = m_jobs.find(m_lookedAt); before != m_jobs.end())
        before->file.picture = {};
    m_lookedAt = id;
    FindPicture();
}

void MessageFiles::FindPicture() {
    const QString path = Of(m_lookedAt).outcome.path;
    if (path.isEmpty())
        return;
    Run(
        m_disk, [path] { return ReadPicture(path); }, {},
        [this, id = m_lookedAt](const QImage& picture) {
            const auto job = m_jobs.find(id);
            if (id != m_lookedAt || job == m_jobs.end())
                return;
            job->file.picture = picture;
            emit Changed(id);
        });
}

void MessageFiles::Cancel(int id) {
    const auto job = m_jobs.find(id);
    if (job == m_jobs.end() || job->file.stage != MessageFile::Stage::Loading)
        return;
    job->cancellation.Cancel();
    job->file.stage = MessageFile::Stage::Failed;
    job->file.outcome.error = WebError::Cancelled;
    emit Changed(id);
}

void MessageFiles::Forget(int id) {
    Cancel(id);
    m_jobs.remove(id);
}

MessageFile MessageFiles::Of(int id) const {
    return m_jobs.value(id).file;
}

void MessageFiles::CopyTo(int id, const QString& target) {
    Run(
        m_disk, [from = Of(id).outcome.path, target] { return SaveCopy(from, target); },
        {{}, WebError::Internal, false},
        [this, id](const FileFetchOutcome& copy) {
            const auto job = m_jobs.find(id);
            if (job == m_jobs.end())
                return;
            job->file.copy = copy;
            emit Changed(id);
        });
}

void MessageFiles::TellProgress() {
    bool loading = false;
    for (auto job = m_jobs.begin(); job != m_jobs.end(); ++job) {
        if (job->file.stage != MessageFile::Stage::Loading)
            continue;
        loading = true;
        if (job->file.percent != *job->percent) {
            job->file.percent = *job->percent;
            emit Changed(job.key());
        }
    }
    if (!loading)
        m_progress.stop();
}
