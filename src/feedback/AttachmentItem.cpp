#include "feedback/AttachmentItem.h"

#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "widgets/ThemeIcon.h"
#include "widgets/UElidedLabel.h"
#include "widgets/UIconButton.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextLabel.h"
#include "widgets/WebErrorText.h"

#include <QEvent>
#include <QGridLayout>
#include <QProgressBar>
#include <utility>

namespace {

constexpr int Width = 396;

} // namespace

AttachmentItem::AttachmentItem(AttachmentFile file, const FeedbackBackend& backend, Workers& workers,
                               QWidget* parent)
    : QFrame(parent),
      m_file(std::move(file)),
      m_backend(backend),
      m_workers(workers),
      m_size(m_file.size),
      m_icon(new UIconLabel(28)),
      m_name(new UElidedLabel),
      m_status(new UTextLabel("attachmentStatus")),
      m_progress(new QProgressBar),
      m_again(new UIconButton("attachmentAgain", QStringLiteral("close"))),
      m_remove(new UIconButton("attachmentRemove", QStringLiteral("remove"))) {
    m_name->setObjectName(QStringLiteral("attachmentName"));
    m_name->SetElideMode(Qt::ElideMiddle);
    m_name->SetText(m_file.name);
    m_progress->setTextVisible(false);
    QSizePolicy fixedPlace = m_progress->sizePolicy();
    fixedPlace.setRetainSizeWhenHidden(true);
    m_progress->setSizePolicy(fixedPlace);
    m_progress->setAccessibleName(m_file.name);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(14, 8, 6, 8);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(4);
    grid->setColumnMinimumWidth(0, 36);
    grid->setColumnStretch(1, 1);
    grid->addWidget(m_icon, 0, 0, 2, 1);
    grid->addWidget(m_name, 0, 1, Qt::AlignBottom);
    grid->addWidget(m_status, 1, 1, Qt::AlignTop);
    grid->addWidget(m_again, 0, 2, 2, 1);
    grid->addWidget(m_remove, 0, 3, 2, 1);
    grid->addWidget(m_progress, 2, 0, 1, 4);

    connect(m_again, &QPushButton::clicked, this, [this] {
        if (m_state == State::Pending)
            Cancel();
        else
            Retry();
    });
    connect(m_remove, &QPushButton::clicked, this, &AttachmentItem::RemoveRequested);
    connect(&m_upload, &QFutureWatcherBase::finished, this, &AttachmentItem::OnUploaded);
    Start();
}

AttachmentItem::~AttachmentItem() {
    m_cancellation.Cancel();
}

void AttachmentItem::Start() {
    m_cancellation = Cancellation();
    m_meter = ProgressMeter();
    // The worker has copies: it may be at work after this widget has gone. A picture's folder goes with it.
    const auto upload = [upload = m_backend.upload, file = m_file, meter = m_meter,
                         cancellation = m_cancellation]() -> FeedbackBackend::Upload {
        if (cancellation.IsCancelled())
            return {{}, WebError::Cancelled};
        return upload(file.path, meter.Watch(cancellation));
    };
    m_upload.setFuture(m_workers.Run(upload, {{}, WebError::Internal}));
    SetState(State::Pending);
}

void AttachmentItem::Cancel() {
    if (m_state != State::Pending)
        return;
    m_cancellation.Cancel();
    m_error = WebError::Cancelled;
    SetState(State::Failed);
}

void AttachmentItem::Retry() {
    if (m_state == State::Failed)
        Start();
}

void AttachmentItem::OnUploaded() {
    if (m_state != State::Pending) // cancelled meanwhile
        return;
    const FeedbackBackend::Upload upload = m_upload.result();
    m_uploaded = upload.file;
    if (upload.error == WebError::None)
        m_size = upload.size; // it may have changed since it was attached
    m_error = upload.error;
    SetState(m_error == WebError::None ? State::Uploaded : State::Failed);
}

void AttachmentItem::SetState(State state) {
    m_state = state;
    for (QWidget* part : {static_cast<QWidget*>(this), static_cast<QWidget*>(m_status)})
        Theme::SetProperty(part, "failed", state == State::Failed);
    m_again->setVisible(state != State::Uploaded);
    m_again->setIcon(
        ThemeIcon::Get(state == State::Failed ? QStringLiteral("retry") : QStringLiteral("close")));
    m_progress->setVisible(state == State::Pending);
    m_icon->SetIcon(state == State::Failed     ? QStringLiteral("error")
                    : state == State::Uploaded ? QStringLiteral("success")
                                               : QStringLiteral("file"),
                    state == State::Failed     ? QStringLiteral("danger")
                    : state == State::Uploaded ? QStringLiteral("success")
                                               : QStringLiteral("textMuted"));
    Retranslate();
    emit StateChanged();
}

void AttachmentItem::ShowProgress() {
    if (m_state != State::Pending)
        return;
    m_progress->setValue(qMax(0, m_meter.Percent()));
    ShowStatus();
}

QWidget* AttachmentItem::FirstButton() const {
    return m_again;
}

QWidget* AttachmentItem::LastButton() const {
    return m_remove;
}

// The words below the name may need a second line.
QSize AttachmentItem::sizeHint() const {
    return {Width, heightForWidth(Width)};
}

void AttachmentItem::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QFrame::changeEvent(event);
}

void AttachmentItem::Retranslate() {
    setAccessibleName(m_file.name);
    m_again->SetName(
        (m_state == State::Failed ? tr("attachment_retry") : tr("attachment_cancel")).arg(m_file.name));
    m_remove->SetName(tr("attachment_remove").arg(m_file.name));
    ShowStatus();
}

void AttachmentItem::ShowStatus() {
    const QString size = LanguageHelper::Instance()->SizeText(m_size);
    const int percent = m_meter.Percent();
    QString status;
    if (m_state == State::Uploaded)
        status = tr("attachment_uploaded").arg(size);
    else if (m_state == State::Failed)
        status = WebErrorText(m_error);
    else if (percent < 0)
        status = tr("attachment_waiting").arg(size);
    else
        status = tr("attachment_uploading").arg(LanguageHelper::Instance()->Locale().toString(percent), size);
    if (status == m_status->text())
        return;
    m_status->setText(status);
    setAccessibleDescription(status);
    updateGeometry();
}
