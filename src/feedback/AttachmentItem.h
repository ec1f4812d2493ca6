#pragma once

#include "feedback/AttachmentFile.h"
#include "feedback/FeedbackBackend.h"
#include "platform/files/Workers.h"

#include <QFrame>
#include <QFutureWatcher>

class QProgressBar;
class UElidedLabel;
class UIconButton;
class UIconLabel;
class QLabel;

/// One attached file: its name, how its upload stands, and what can be done about it.
class AttachmentItem : public QFrame {
    Q_OBJECT

public:
    enum class State { Pending, Uploaded, Failed };

    /// Uploads the file at once, or as soon as one of the workers has time.
    AttachmentItem(AttachmentFile file, const FeedbackBackend& backend, Workers& workers,
                   QWidget* parent = nullptr);
    /// Cancels the upload.
    ~AttachmentItem() override;

    const AttachmentFile& File() const { return m_file; }
    State UploadState() const { return m_state; }
    /// Name and address of the uploaded file.
    const FileDto& Uploaded() const { return m_uploaded; }

    /// Gives the upload up; the file stays in the list as one that is not uploaded.
    void Cancel();
    /// Uploads a file once more that is not uploaded.
    void Retry();
    /// Looks how far the upload is.
    void ShowProgress();

    /// The buttons in the order of the Tab key.
    QWidget* FirstButton() const;
    QWidget* LastButton() const;

    QSize sizeHint() const override;

signals:
    void StateChanged();
    void RemoveRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    void Start();
    void OnUploaded();
    void SetState(State state);
    void Retranslate();
    void ShowStatus();

    const AttachmentFile m_file;
    const FeedbackBackend& m_backend;
    Workers& m_workers;
    qint64 m_size;
    State m_state = State::Pending;
    WebError m_error = WebError::None;
    FileDto m_uploaded;
    Cancellation m_cancellation;
    ProgressMeter m_meter;
    QFutureWatcher<FeedbackBackend::Upload> m_upload;
    UIconLabel* m_icon;
    UElidedLabel* m_name;
    QLabel* m_status;
    QProgressBar* m_progress;
    UIconButton* m_again; // cancels what runs, and tries again what failed
    UIconButton* m_remove;
};
