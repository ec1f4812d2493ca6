#pragma once

#include "feedback/LogReport.h"

class QStringList;
class QWidget;
class UAlert;

/// What the page of the log report asks and tells over its window. The alerts follow the language, go with
/// the page, and go for good once they are answered; the caller connects the answers and shows them. GUI
/// thread.
namespace FeedbackAlerts {

/// Whether to send the report without the attachments of these names.
UAlert* SendWithout(QWidget* page, const QStringList& names);
/// Whether to discard what is written and attached.
UAlert* Discard(QWidget* page);
/// Whether to write over the file of this name.
UAlert* Replace(QWidget* page, const QString& name);
/// The report was sent.
UAlert* Sent(QWidget* page);
/// The report was not sent, or perhaps was, and why. Accepted: once more; other: save it.
UAlert* NotSent(QWidget* page, const LogReportOutcome& outcome);

} // namespace FeedbackAlerts
