#include "feedback/UFeedback.h"

#include "common/CrashRecords.h"
#include "feedback/AttachmentStrip.h"
#include "feedback/FeedbackAlerts.h"
#include "feedback/FeedbackForm.h"
#include "feedback/LogFilesDialog.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/MachineHelper.h"
#include "platform/context/RyxPath.h"
#include "platform/context/Theme.h"
#include "widgets/ThemeIcon.h"
#include "widgets/UAlert.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QProgressBar>
#include <QShortcut>
#include <QVBoxLayout>
#include <glog/logging.h>
#include <utility>

namespace {

constexpr int ProgressMs = 100;
constexpr int CrashDays = 7; // for which a crash is worth a report
constexpr int EndMs = 1500;  // of the two seconds that the program has for its end

// Whatever was proposed: after a move the source would delete its file.
void AcceptCopy(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

UFeedback::UFeedback(QWidget* parent)
    : UPage(QStringLiteral("feedback"), parent),
      m_form(new FeedbackForm(m_backend)),
      m_crash(new UTextLabel("pageNote")),
      m_logFiles(new UTextButton(UTextButton::Look::Plain)),
      m_tip(new UTextLabel("pageNote")),
      m_progress(new QProgressBar),
      m_cancel(new UTextButton),
      m_submit(new UTextButton(UTextButton::Look::Primary)) {
    Initialization();
    InitConnect();
    Retranslate();
    SetActivity(Activity::None);
}

UFeedback::~UFeedback() {
    m_cancellation.Cancel();
    const QDeadlineTimer deadline(EndMs);
    disconnect(m_form, nullptr, this, nullptr);
    m_form->Attachments().Stop(deadline);
    m_workers.Join(deadline);
}

void UFeedback::Initialization() {
    ShowBackButton();
    setAcceptDrops(true);
    m_logFiles->setObjectName(QStringLiteral("logFilesButton"));
    m_logFiles->setIcon(ThemeIcon::Get(QStringLiteral("info")));
    m_cancel->setObjectName(QStringLiteral("cancelButton"));
    m_submit->setObjectName(QStringLiteral("submitButton"));
    m_submit->SetLoadingIcon(QStringLiteral(":/res/images/ic_loading_white.png"));
    m_progress->setTextVisible(false);
    m_progressTimer.setObjectName(QStringLiteral("reportProgressTimer"));
    m_progressTimer.setInterval(ProgressMs);

    auto* footer = new QWidget;
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addWidget(m_tip, 1);
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_submit);
    auto* column = new QVBoxLayout(footer);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(m_progress);
    column->addLayout(buttons);
    Content().addWidget(m_form);
    Content().addWidget(m_crash);
    Content().addWidget(m_logFiles, 0, Qt::AlignLeading);
    SetFooter(footer);
}

void UFeedback::InitConnect() {
    connect(m_form, &FeedbackForm::Changed, this, &UFeedback::ValidateSubmit);
    connect(m_form, &FeedbackForm::Submitted, this, &UFeedback::OnSubmitButtonClicked);
    connect(m_submit, &QPushButton::clicked, this, &UFeedback::OnSubmitButtonClicked);
    connect(m_cancel, &QPushButton::clicked, this, [this] { m_cancellation.Cancel(); });
    connect(m_logFiles, &QPushButton::clicked, this, &UFeedback::ShowLogFiles);
    connect(&m_progressTimer, &QTimer::timeout, this, &UFeedback::ShowProgress);
    connect(&m_report, &QFutureWatcherBase::finished, this, &UFeedback::OnReportEnded);
    connect(&m_archive, &QFutureWatcherBase::finished, this, &UFeedback::OnArchiveEnded);
    connect(this, &UFeedback::LogReported, this, &UFeedback::OnLogReported);
    connect(this, &UPage::BackRequested, this, &UFeedback::Leave);
    // A text field that has the focus takes the keys for itself.
    auto* paste = new QShortcut(QKeySequence::Paste, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(paste, &QShortcut::activated, this, &UFeedback::PasteAttachment);
}

void UFeedback::ValidateSubmit() {
    const bool can = m_form->IsComplete() && m_activity != Activity::Saving;
    // Or else the focus would go to what comes next, the window's own buttons.
    if (!can && window()->focusWidget() == m_submit)
        (m_cancel->isHidden() ? static_cast<QWidget*>(m_form) : m_cancel)->setFocus();
    m_submit->setEnabled(can);
    ShowTip();
}

void UFeedback::SetActivity(Activity activity) {
    m_activity = activity;
    const bool isBusy = activity != Activity::None;
    m_form->SetLocked(isBusy);
    m_submit->SetLoading(activity == Activity::Reporting);
    m_progress->setVisible(isBusy);
    if (isBusy) {
        m_cancellation = Cancellation();
        m_meter = ProgressMeter();
        m_progressTimer.start();
    } else {
        m_progressTimer.stop();
    }
    ShowProgress();
    if (isBusy)
        m_cancel->show();
    ValidateSubmit();
    if (isBusy)
        return;
    if (window()->focusWidget() == m_cancel) // even while another window is active
        m_submit->setFocus();
    m_cancel->hide();
}

void UFeedback::ShowProgress() {
    m_progress->setValue(qMax(0, m_meter.Percent()));
}

void UFeedback::OnSubmitButtonClicked() {
    if (m_activity != Activity::None || !m_form->IsComplete() || !m_form->CheckEmail())
        return;
    const QStringList failed = m_form->Attachments().Failed();
    if (failed.isEmpty()) {
        StartReport();
        return;
    }
    UAlert* alert = FeedbackAlerts::SendWithout(this, failed);
    connect(alert, &UAlert::Accepted, this, &UFeedback::StartReport);
    alert->show();
}

void UFeedback::OnSubmitRetry() {
    if (m_activity == Activity::None)
        StartReport();
}

void UFeedback::StartReport() {
    m_onReturn = nullptr;
    SetActivity(Activity::Reporting);
    const LogReportRequest request{RyxPath::GetRyxLogDir(),         RyxPath::GetRyxTempDir(),
                                   MachineHelper::GetDeviceName(),  AppContextData::Instance()->ContextText(),
                                   m_form->Description(),           m_form->Email(),
                                   m_form->Attachments().Uploaded()};
    const auto report = [backend = m_backend, request, cancellation = m_cancellation, meter = m_meter] {
        return ReportLog(backend, request, cancellation, meter);
    };
    LogReportOutcome failed;
    failed.error = WebError::Internal;
    failed.step = ReportStep::Send;
    m_report.setFuture(m_workers.Run(report, failed));
}

LogReportOutcome UFeedback::ReportLog(const FeedbackBackend& backend, const LogReportRequest& request,
                                      const Cancellation& cancellation, const ProgressMeter& meter) {
    LogReportOutcome outcome = backend.report(request, cancellation, meter);
    LOG_IF(INFO, !outcome.ok) << "UFeedback::ReportLog " << outcome.logLine;
    return outcome;
}

void UFeedback::OnReportEnded() {
    m_outcome = m_report.result();
    emit LogReported(m_outcome.message, m_outcome.ok);
}

void UFeedback::OnLogReported(const QString&, bool ok) {
    SetActivity(Activity::None);
    if (ok)
        m_form->Clear();
    if (m_outcome.error == WebError::Cancelled)
        Notify(NoticeKind::Info,
               m_outcome.MayHaveArrived() ? tr("feedback_unknown_title") : tr("feedback_cancelled"));
    else if (!ok)
        TellFailure();
    else if (IsSeen())
        ShowSuccess();
    else
        Notify(NoticeKind::Success, tr("feedback_sent_title"));
}

void UFeedback::TellFailure() {
    ShowNowOrOnReturn(&UFeedback::ShowFailure, m_outcome.MayHaveArrived() ? tr("feedback_unknown_title")
                                                                          : tr("feedback_failed_notice"));
}

void UFeedback::ShowNowOrOnReturn(void (UFeedback::*act)(), const QString& notice) {
    if (IsSeen()) {
        (this->*act)();
        return;
    }
    m_onReturn = act;
    Notify(NoticeKind::Error, notice);
}

bool UFeedback::IsSeen() const {
    return isVisible() && !window()->isMinimized();
}

void UFeedback::ShowSuccess() {
    UAlert* alert = FeedbackAlerts::Sent(this);
    connect(alert, &UAlert::Accepted, this, &UFeedback::Left);
    alert->show();
}

void UFeedback::ShowFailure() {
    UAlert* alert = FeedbackAlerts::NotSent(this, m_outcome);
    connect(alert, &UAlert::Accepted, this, &UFeedback::OnSubmitRetry);
    connect(alert, &UAlert::OtherChosen, this, &UFeedback::ChooseArchive);
    alert->show();
}

void UFeedback::ChooseArchive() {
    const QString folder = QString::fromStdWString(RyxPath::GetDocumentsDir());
    const QString name =
        QStringLiteral("RYXREPORT-%1.zip")
            .arg(QLocale::c().toString(Clock::System().Now(), QStringLiteral("yyyyMMddhhmmss")));
    auto* dialog = new QFileDialog(this, tr("feedback_save"), QDir(folder).filePath(name),
                                   tr("feedback_save_type") + QStringLiteral(" (*.zip)"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("zip"));
    dialog->setOption(QFileDialog::DontConfirmOverwrite); // it is asked for below, without an event loop
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString& target) { SaveArchive(target, false); });
    connect(dialog, &QDialog::rejected, this, &UFeedback::ShowFailure);
    dialog->open();
}

void UFeedback::SaveArchive(const QString& target, bool mayReplace) {
    SetActivity(Activity::Saving);
    m_target = target;
    const QString device = QString::fromStdString(MachineHelper::GetDeviceName());
    const QString text =
        QStringLiteral("%1\n%2\n%3\n\n%4\n")
            .arg(device, Clock::System().Now().toString(Qt::ISODate), m_form->Email(), m_form->Description());
    const ReportArchive archive{RyxPath::GetRyxLogDir(),
                                RyxPath::GetRyxTempDir(),
                                text,
                                m_form->Attachments().Paths(),
                                target,
                                mayReplace};
    const auto save = [save = m_backend.save, archive, control = m_meter.Watch(m_cancellation)] {
        return save(archive, control);
    };
    m_archive.setFuture(m_workers.Run(save, ReportArchive::Result::Failed));
}

void UFeedback::OnArchiveEnded() {
    using Result = ReportArchive::Result;
    const bool cancelled = m_cancellation.IsCancelled();
    SetActivity(Activity::None);
    const Result result = m_archive.result();
    if (result == Result::Saved) {
        Notify(NoticeKind::Success, tr("log_export_log_success"));
        return;
    }
    const QString reason = result == Result::NoPlace        ? tr("feedback_save_no_place")
                           : result == Result::NoRoom       ? tr("feedback_save_no_room")
                           : result == Result::NoAttachment ? tr("feedback_save_no_attachment")
                                                            : QString();
    const QString notice = (tr("log_export_log_failed") + QLatin1Char('\n') + reason).trimmed();
    if (result == Result::Exists) {
        ShowNowOrOnReturn(&UFeedback::AskToReplace, notice);
        return;
    }
    if (!cancelled)
        Notify(NoticeKind::Error, notice);
    TellFailure(); // neither sent nor saved
}

void UFeedback::AskToReplace() {
    UAlert* alert = FeedbackAlerts::Replace(this, QFileInfo(m_target).fileName());
    connect(alert, &UAlert::Accepted, this, [this] { SaveArchive(m_target, true); });
    connect(alert, &UAlert::Rejected, this, &UFeedback::ChooseArchive);
    alert->show();
}

void UFeedback::Leave() {
    if (m_activity != Activity::None) {
        Notify(NoticeKind::Info, tr("feedback_goes_on"));
        emit Left();
    } else if (!m_form->HoldsSomething()) {
        emit Left();
    } else {
        UAlert* alert = FeedbackAlerts::Discard(this);
        connect(alert, &UAlert::Accepted, this, [this] {
            m_form->Clear();
            emit Left();
        });
        alert->show();
    }
}

void UFeedback::ShowLogFiles() {
    (new LogFilesDialog(QString::fromStdWString(RyxPath::GetRyxLogDir()),
                        QString::fromStdString(MachineHelper::GetDeviceName()), this))
        ->show();
}

void UFeedback::PasteAttachment() {
    const QMimeData* clip = QApplication::clipboard()->mimeData();
    if (clip && m_activity == Activity::None && AttachmentStrip::CanTake(*clip))
        m_form->Attachments().Take(*clip);
}

void UFeedback::Notify(NoticeKind kind, const QString& text) {
    if (RyxWindow* window = RyxWindow::Of(this))
        window->Notify(kind, text);
}

void UFeedback::showEvent(QShowEvent* event) {
    UPage::showEvent(event);
    ShowCrash();
    if (const auto tell = std::exchange(m_onReturn, nullptr))
        (this->*tell)();
}

void UFeedback::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    UPage::changeEvent(event);
}

void UFeedback::dragEnterEvent(QDragEnterEvent* event) {
    if (m_activity != Activity::None || !AttachmentStrip::CanTake(*event->mimeData()))
        return;
    AcceptCopy(*event);
    Theme::SetProperty(&m_form->Attachments(), "dropTarget", true);
}

void UFeedback::dragLeaveEvent(QDragLeaveEvent*) {
    Theme::SetProperty(&m_form->Attachments(), "dropTarget", false);
}

void UFeedback::dropEvent(QDropEvent* event) {
    Theme::SetProperty(&m_form->Attachments(), "dropTarget", false);
    if (m_activity != Activity::None || !AttachmentStrip::CanTake(*event->mimeData()))
        return;
    AcceptCopy(*event);
    m_form->Attachments().Take(*event->mimeData());
}

void UFeedback::Retranslate() {
    SetTitle(tr("log_report_title"));
    SetSentence(tr("feedback_sentence"));
    m_logFiles->setText(tr("log_files_title"));
    ShowCrash();
    ShowTip();
    m_cancel->setText(tr("feedback_cancel"));
    m_submit->setText(tr("log_submit"));
}

void UFeedback::ShowTip() {
    m_tip->setText(m_activity == Activity::Reporting   ? tr("feedback_sending")
                   : m_activity == Activity::Saving    ? tr("feedback_saving")
                   : m_form->Attachments().IsPending() ? tr("feedback_uploads_pending")
                                                       : tr("log_submit_tip"));
    m_progress->setAccessibleName(m_tip->text());
}

void UFeedback::ShowCrash() {
    const QDateTime crash = CrashRecords::Newest(QString::fromStdWString(RyxPath::GetRyxLogDir()));
    m_crash->setVisible(crash.isValid() && crash.daysTo(Clock::System().Now()) < CrashDays);
    m_crash->setText(
        tr("feedback_crash").arg(LanguageHelper::Instance()->Locale().toString(crash, QLocale::ShortFormat)));
}
