#include "messages/MessageFiles.h"

#include "messages/FileNames.h"

#include <QFileInfo>
#include <QFutureWatcher>

namespace {

constexpr int ProgressMs = 100;
constexpr int EndMs = 400; // cancelled work ends within a tenth of a second

} // namespace

MessageFiles::MessageFiles(MessageHistory& history, const QString& folder, std::int64_t maxBytes)
    : m_history(history), m_folder(folder), m_maxBytes(maxBytes) {
    m_progress.setInterval(ProgressMs);
    connect(&m_progress, &QTimer::timeout, this, &MessageFiles::LookAtProgress);
}

MessageFiles::~MessageFiles() {
    for (const Job& job : qAsConst(m_jobs))
        job.cancellation.Cancel();
    m_workers.Join(QDeadlineTimer(EndMs));
}

template <class Work, class Then>
void MessageFiles::Run(Work work, const std::invoke_result_t<Work>& failed, Then then) {
    auto* watcher = new QFutureWatcher<std::invoke_result_t<Work>>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [watcher, then] {
        watcher->deleteLater();
        then(watcher->result());
    });
    watcher->setFuture(m_workers.Run(work, failed));
}

void MessageFiles::Fetch(int id) {
    const Message* message = m_history.Find(id);
    const MessageFile::Stage stage = m_jobs.value(id).file.stage;
    if (message && message->HasFile() && stage != MessageFile::Stage::Loading &&
        stage != MessageFile::Stage::Saved)
        Start(id, *message);
}

void MessageFiles::Start(int id, const Message& message) {
    Job job;
    job.file.stage = MessageFile::Stage::Loading;
    m_jobs[id] = job;
    const TaskControl control{job.cancellation,
                              [percent = job.percent](std::int64_t done, std::int64_t total) {
                                  if (total > 0)
                                      *percent = static_cast<int>(done * 100 / total);
                              }};
    const FileFetchRequest request{message.file, m_folder, m_maxBytes};
    const QString saved = message.savedAs;
    m_progress.start();
    Run(
        [request, control, saved] {
            if (saved.isEmpty() || !QFileInfo(saved).isFile())
                return FetchFile(request, control);
            FileFetchOutcome there;
            there.path = saved;
            there.picture = ReadPicture(saved);
            return there;
        },
        {{}, WebError::Internal, false, {}},
        [this, id, cancellation = job.cancellation](const FileFetchOutcome& outcome) {
            const auto mine = m_jobs.find(id);
            if (mine == m_jobs.end() || (cancellation.IsCancelled() && outcome.path.isEmpty()))
                return;
            mine->file.outcome = outcome;
            mine->file.stage =
                outcome.path.isEmpty() ? MessageFile::Stage::Failed : MessageFile::Stage::Saved;
            if (!outcome.path.isEmpty())
                m_history.SetSavedAs(id, outcome.path);
            emit Changed(id);
        });
    emit Changed(id);
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
    Run([from = Of(id).outcome.path, target] { return FileNames::Copy(from, target); }, {},
        [this, id](const QString& copy) {
            const auto job = m_jobs.find(id);
            if (job == m_jobs.end())
                return;
            job->file.copy = copy;
            emit Changed(id);
        });
}

void MessageFiles::LookAtProgress() {
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
