#pragma once

#include "feedback/ProgressMeter.h"
#include "platform/application/Clock.h"
#include "platform/web/RyxWebClient.h"

#include <QByteArray>
#include <QString>
#include <string>
#include <vector>

/// All that a log report is made of, copied on the GUI thread: the worker looks at nothing else.
struct LogReportRequest {
    std::wstring logFolder;
    std::wstring tempFolder;
    std::string deviceName;
    std::string identity; ///< of the device for the service: the context string
    QString description;
    QString email;
    std::vector<FileDto> attachments; ///< those that are uploaded, in the order of the list
};

/// The steps of a report, in their order.
enum class ReportStep { Pack, Upload, Register, Address, Send };

/// How a report ended.
struct LogReportOutcome {
    bool ok = false;
    QString message;                    ///< of the service, or why it has none; empty before the last step
    ReportStep step = ReportStep::Pack; ///< the one that failed, if any did
    WebError error = WebError::None;    ///< why, as far as the web client told
    QString said;                       ///< by the service of a failure; empty when it said nothing
    std::string logLine;                ///< what the log has to say of the failure

    /// Whether the service may have the report, although it has not said so.
    bool MayHaveArrived() const;
};

/// Packs the logs, uploads them, registers them with the service, and sends the feedback. Stops at the first
/// step that fails. The archive is gone at the end, whatever the end was. Worker threads.
class LogReport {
public:
    explicit LogReport(LogReportRequest request, const RyxWebClient& client = *RyxWebClient::Instance(),
                       const Clock& clock = Clock::System());

    LogReportOutcome Run(const Cancellation& cancellation, const ProgressMeter& meter);

private:
    bool UploadLog(const Cancellation& cancellation, const ProgressMeter& meter);
    bool Send(const TaskControl& control);
    QByteArray Document() const;
    QString Time(const char* format) const;

    LogReportRequest m_request;
    const RyxWebClient& m_client;
    const Clock& m_clock;
    LogReportOutcome m_outcome;
    WebFailure m_failure;
    std::string m_logAddress;
};
