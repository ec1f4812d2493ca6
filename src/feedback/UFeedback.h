#pragma once

#include "feedback/FeedbackBackend.h"
#include "feedback/ReportArchive.h"
#include "platform/application/NoticeKind.h"
#include "platform/files/Workers.h"
#include "widgets/UPage.h"

#include <QFutureWatcher>
#include <QTimer>

class FeedbackForm;
class QProgressBar;
class UTextButton;

/// The page from which a user reports a problem, with the logs of this device.
class UFeedback : public UPage {
    Q_OBJECT

public:
    explicit UFeedback(QWidget* parent = nullptr);
    /// Cancels what runs and waits for it, a second and a half at most.
    ~UFeedback() override;

    /// Puts others in the place of those who do the work. Before the page is used.
    void SetBackend(const FeedbackBackend& backend) { m_backend = backend; }

    /// Lets the user submit what can be submitted.
    void ValidateSubmit();
    /// Sends the report, unless it cannot be sent yet or one is on its way.
    void OnSubmitButtonClicked();
    /// Sends the same report once more.
    void OnSubmitRetry();

signals:
    /// A report has ended: what the service said, and whether it has taken the report.
    void LogReported(const QString& message, bool ok);
    /// The user leaves the page.
    void Left();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    enum class Activity { None, Reporting, Saving };

    void Initialization();
    void InitConnect();
    void SetActivity(Activity activity);
    void ShowProgress();
    void ShowTip();

    void StartReport();
    static LogReportOutcome ReportLog(const FeedbackBackend& backend, const LogReportRequest& request,
                                      const Cancellation& cancellation, const ProgressMeter& meter);
    void OnReportEnded();
    void OnLogReported(const QString& message, bool ok);
    void TellFailure();
    void ShowNowOrOnReturn(void (UFeedback::*act)(), const QString& notice);
    bool IsSeen() const;
    void ShowSuccess();
    void ShowFailure();

    void ChooseArchive();
    void SaveArchive(const QString& target, bool mayReplace);
    void OnArchiveEnded();
    void AskToReplace();

    void Leave();
    void ShowLogFiles();
    void PasteAttachment();
    void Notify(NoticeKind kind, const QString& text);
    void Retranslate();
    void ShowCrash();

    FeedbackBackend m_backend;
    Workers m_workers{1};
    Activity m_activity = Activity::None;
    Cancellation m_cancellation;
    ProgressMeter m_meter;
    QFutureWatcher<LogReportOutcome> m_report;
    QFutureWatcher<ReportArchive::Result> m_archive;
    QString m_target; // of the archive
    LogReportOutcome m_outcome;
    void (UFeedback::*m_onReturn)() = nullptr; // shows what came while the page was not seen
    QTimer m_progressTimer{this};

    FeedbackForm* m_form;
    QLabel* m_crash; // that the program has crashed lately
    UTextButton* m_logFiles;
    QLabel* m_tip;
    QProgressBar* m_progress;
    UTextButton* m_cancel;
    UTextButton* m_submit;
};
