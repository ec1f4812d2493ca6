#include "feedback/LogReport.h"

#include "platform/files/ZipUtility.h"
#include "platform/security/LogText.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QScopeGuard>
#include <array>
#include <glog/logging.h>
#include <utility>

namespace {

constexpr std::array<const char*, 5> FailureLines{"file failed to zip", "file failed to UploadToNubra",
                                                  "NotifyDeviceLogUpload failed.",
                                                  "GetDownloadUrlByFileKey failed.", "Feedback failed: "};

// What the steps take of the whole, in percent.
constexpr int Packed = 30;
constexpr int Uploaded = 90;
constexpr int Registered = 93;
constexpr int Addressed = 96;

QJsonObject Attached(const QString& name, const std::string& url) {
    return {{QStringLiteral("name"), name}, {QStringLiteral("url"), QString::fromStdString(url)}};
}

} // namespace

bool LogReportOutcome::MayHaveArrived() const {
    switch (error) {
    case WebError::Cancelled:
    case WebError::Unreachable:
    case WebError::TimedOut:
    case WebError::BadAnswer:
        return step == ReportStep::Send;
    default:
        return false;
    }
}

LogReport::LogReport(LogReportRequest request, const RyxWebClient& client, const Clock& clock)
    : m_request(std::move(request)), m_client(client), m_clock(clock) {}

LogReportOutcome LogReport::Run(const Cancellation& cancellation, const ProgressMeter& meter) {
    try {
        m_outcome.ok = UploadLog(cancellation, meter) && Send(meter.Watch(cancellation, Addressed));
    } catch (const std::exception& error) {
        LOG(ERROR) << "LogReport::Run ended with an exception: " << LogText(std::string(error.what()));
        m_failure.error = WebError::Internal;
    }
    if (!m_outcome.ok) {
        m_outcome.error = cancellation.IsCancelled() ? WebError::Cancelled : m_failure.error;
        m_outcome.said = QString::fromStdString(m_failure.said);
        m_outcome.logLine = FailureLines[static_cast<size_t>(m_outcome.step)] + LogText(m_outcome.message);
    }
    return m_outcome;
}

bool LogReport::UploadLog(const Cancellation& cancellation, const ProgressMeter& meter) {
    const QString archive = QDir(QString::fromStdWString(m_request.tempFolder))
                                .filePath(QStringLiteral("RYXLOG-%1.zip").arg(Time("yyyyMMddhhmmss")));
    const auto remove = qScopeGuard([&] {
        QFile file(archive);
        LOG_IF(WARNING, file.exists() && !file.remove())
            << "LogReport::UploadLog could not remove the archive: " << LogText(file.errorString());
    });

    m_outcome.step = ReportStep::Pack;
    google::FlushLogFiles(google::GLOG_INFO);
    if (!ZipUtility::CreateZipFromDir(m_request.logFolder, archive.toStdWString(),
                                      meter.Watch(cancellation, 0, Packed)))
        return false;

    m_outcome.step = ReportStep::Upload;
    const NubraUploadResponse uploaded =
        m_client.UploadFile(archive.toStdWString(), UploadType::DeviceLog,
                            meter.Watch(cancellation, Packed, Uploaded), &m_failure);
    if (uploaded.code != 0)
        return false;

    m_outcome.step = ReportStep::Register;
    const FileDto registered = m_client.NotifyDeviceLogUpload(
        m_request.identity, uploaded.data.fileKey, meter.Watch(cancellation, Uploaded), &m_failure);
    if (registered.url.empty())
        return false;

    m_outcome.step = ReportStep::Address;
    m_logAddress = m_client.GetDownloadUrlByFileKey(uploaded.data.fileKey,
                                                    meter.Watch(cancellation, Registered), &m_failure);
    return !m_logAddress.empty();
}

bool LogReport::Send(const TaskControl& control) {
    m_outcome.step = ReportStep::Send;
    std::string message;
    const bool taken = m_client.Feedback(Document().toStdString(), message, control, &m_failure);
    m_outcome.message = QString::fromStdString(message);
    return taken;
}

QByteArray LogReport::Document() const {
    const QString device = QString::fromStdString(m_request.deviceName);
    QJsonArray annex{
        Attached(QStringLiteral("devicelog_%1_%2.zip").arg(device, Time("MMddhhmmss")), m_logAddress)};
    for (const FileDto& attachment : m_request.attachments)
        annex.append(Attached(QString::fromStdString(attachment.name), attachment.url));

    const QJsonObject feedback{{QStringLiteral("content"), m_request.description},
                               {QStringLiteral("email"), m_request.email},
                               {QStringLiteral("title"), QStringLiteral("Windows-%1").arg(device)},
                               {QStringLiteral("platform"), QStringLiteral("Windows")},
                               {QStringLiteral("annex"), annex}};
    const QJsonObject parameter{
        {QStringLiteral("type"),
         QStringLiteral("com.ifp.remote.platform.remote.service.api.dto.feedback.WebFeedbackDto")},
        {QStringLiteral("value"), feedback}};
    return QJsonDocument(
               QJsonObject{
                   {QStringLiteral("interfaceName"),
                    QStringLiteral("com.ifp.remote.platform.remote.service.api.api.FeedBackApiService")},
                   {QStringLiteral("method"), QStringLiteral("sendFeedBack")},
                   {QStringLiteral("superParams"), QJsonArray{parameter}}})
        .toJson();
}

// Not by the user's locale, which may have digits of its own.
QString LogReport::Time(const char* format) const {
    return QLocale::c().toString(m_clock.Now(), QString::fromLatin1(format));
}
