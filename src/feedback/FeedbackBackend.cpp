#include "feedback/FeedbackBackend.h"

#include "feedback/AttachmentFile.h"

#include <QFileInfo>

FeedbackBackend::Upload FeedbackBackend::UploadAttachment(const QString& path, const TaskControl& control) {
    const RyxWebClient& client = *RyxWebClient::Instance();
    const QFileInfo file(path);
    WebFailure failure;
    Upload upload;
    upload.file.name = file.fileName().toStdString();
    if (file.size() > AttachmentFile::MostBytes) { // it has grown since it was attached
        upload.error = WebError::TooLarge;
        return upload;
    }
    const NubraUploadResponse uploaded =
        client.UploadFile(path.toStdWString(), UploadType::Attachment, control, &failure);
    if (uploaded.code == 0)
        upload.file.url =
            client.GetDownloadUrlByFileKey(uploaded.data.fileKey, {control.cancellation, {}}, &failure);
    upload.error = failure.error;
    upload.size = uploaded.data.fileSize;
    return upload;
}
