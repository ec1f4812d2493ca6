#pragma once

#include "feedback/LogReport.h"
#include "feedback/ReportArchive.h"

#include <functional>

/// What the page lets others do, on worker threads. Tests put their own in its place.
struct FeedbackBackend {
    /// An uploaded file, or why it could not be.
    struct Upload {
        FileDto file;
        WebError error = WebError::None;
        qint64 size = 0; ///< as it was uploaded
    };

    std::function<Upload(const QString& path, const TaskControl&)> upload = UploadAttachment;
    std::function<LogReportOutcome(const LogReportRequest&, const Cancellation&, const ProgressMeter&)>
        report = [](const LogReportRequest& request, const Cancellation& cancellation,
                    const ProgressMeter& meter) { return LogReport(request).Run(cancellation, meter); };

    std::function<ReportArchive::Result(const ReportArchive&, const TaskControl&)> save =
        &ReportArchive::Save;

    /// Uploads a file with the web client and asks for its address. One that changes meanwhile fails, and one
    /// that is too large by now.
    static Upload UploadAttachment(const QString& path, const TaskControl& control);
};
