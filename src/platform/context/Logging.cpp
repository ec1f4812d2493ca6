#include "platform/context/Logging.h"

#include "platform/security/LogText.h"
#include "platform/system/FileRights.h"
#include "platform/system/SystemSession.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QScopedValueRollback>
#include <algorithm>
#include <glog/logging.h>
#include <memory>

namespace {

/// This thread writes a line, and holds glog's lock: another line from within would wait forever.
thread_local bool isWriting = false;

/// Writes through glog's own log files. Each time a new one was begun, it becomes readable by its user and
/// the administrators only, and the oldest ones go.
class OwnLogFiles : public google::base::Logger {
public:
    /// Files of every session count: `name` begins with the session's number.
    OwnLogFiles(google::base::Logger* files, const QString& dir, const QString& name, int keep)
        : m_files(files),
          m_dir(dir),
          m_pattern(QLatin1Char('*') + name.mid(name.indexOf(QLatin1Char('-'))) + QStringLiteral(".*")),
          m_keep(keep) {}

    google::base::Logger* Files() const { return m_files; }

    void Write(bool forceFlush, time_t timestamp, const char* message, size_t length) override {
        const QScopedValueRollback<bool> writing(isWriting, true);
        const auto before = m_files->LogSize();
        m_files->Write(forceFlush, timestamp, message, length);
        if (before == 0 || m_files->LogSize() <= before)
            OnNewFile();
    }
    void Flush() override { m_files->Flush(); }
    google::uint32 LogSize() override { return m_files->LogSize(); }

private:
    void OnNewFile() const {
        QStringList names;
        for (const QString& name : m_dir.entryList({m_pattern}, QDir::Files | QDir::NoSymLinks))
            if (IsOwn(name)) // in a folder that all users share, others could have ten newer ones
                names.append(name);
        std::sort(names.begin(), names.end(),
                  [](const QString& one, const QString& other) { return TimeIn(one) > TimeIn(other); });
        const QString mine = QLatin1Char('.') + QString::number(QCoreApplication::applicationPid());
        for (const QString& name : names)
            if (name.endsWith(mine))
                SystemSession::Native().KeepPrivate(m_dir.filePath(name));
        for (int i = m_keep; i < names.size(); ++i)
            QFile::remove(m_dir.filePath(names[i]));
    }

    bool IsOwn(const QString& name) const {
        return FileRights::Of(std::filesystem::u8path(m_dir.filePath(name).toStdString())).isOwn;
    }
    /// Behind the session and the name; the process stands behind it.
    static QString TimeIn(const QString& name) { return name.section(QLatin1Char('.'), 1); }

    google::base::Logger* m_files;
    QDir m_dir;
    QString m_pattern;
    int m_keep;
};

std::unique_ptr<OwnLogFiles> activeFiles;
QtMessageHandler handlerBefore = nullptr;

/// What Qt and its plug-ins have to say. After a fatal message Qt ends the process by itself.
void LogQtMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (isWriting)
        return;
    const bool isWorse = type == QtCriticalMsg || type == QtFatalMsg;
    const auto severity = isWorse                ? google::GLOG_ERROR
                          : type == QtWarningMsg ? google::GLOG_WARNING
                                                 : google::GLOG_INFO;
    LOG_AT_LEVEL(severity) << "Qt: " << LogText(message);
}

} // namespace

void InitLogger(const std::string& name, const std::string& dir, const unsigned& maxFileMegabytes,
                const unsigned& maxFiles) {
    ReleaseLogger();
    static std::string programName; // glog keeps the pointer
    programName = name;
    google::InitGoogleLogging(programName.c_str());
    // glog has read the user's environment before anything of this program ran.
    FLAGS_logtostderr = false;
    FLAGS_logtostdout = false;
    FLAGS_minloglevel = google::GLOG_INFO;
    FLAGS_log_prefix = true;
    FLAGS_log_year_in_prefix = true;
    FLAGS_log_utc_time = false;
    FLAGS_timestamp_in_logfile_name = true;
    FLAGS_max_log_size = static_cast<google::uint32>(maxFileMegabytes);
    FLAGS_logbufsecs = 0;
    FLAGS_logfile_mode = 0600;
    FLAGS_stop_logging_if_full_disk = true;
    for (int severity = google::GLOG_WARNING; severity < google::NUM_SEVERITIES; ++severity)
        google::SetLogDestination(severity, ""); // one file holds all severities
    google::SetLogSymlink(google::GLOG_INFO, "");
    google::SetLogDestination(google::GLOG_INFO, (dir + '/' + name + '.').c_str());

    activeFiles = std::make_unique<OwnLogFiles>(google::base::GetLogger(google::GLOG_INFO),
                                                SystemSession::Native().FromAnsi(dir),
                                                QString::fromStdString(name), static_cast<int>(maxFiles));
    google::base::SetLogger(google::GLOG_INFO, activeFiles.get());
    handlerBefore = qInstallMessageHandler(LogQtMessage);
}

void ReleaseLogger() {
    if (!activeFiles)
        return;
    qInstallMessageHandler(handlerBefore);
    google::FlushLogFiles(google::GLOG_INFO);
    google::base::SetLogger(google::GLOG_INFO, activeFiles->Files());
    activeFiles.reset();
    google::ShutdownGoogleLogging();
}
