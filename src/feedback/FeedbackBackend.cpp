#include "feedback/FeedbackBackend.h"

#include <QFileInfo>

FeedbackBackend::Upload FeedbackBackend::UploadAttachment(const QString& path, const TaskControl& control) {
    const RyxWebClient& client = *RyxWebClient::Instance();
    WebFailure failure;
    Upload upload;
    upload.file.name = QFileInfo(path).fileName().toStdString();
    const NubraUploadResponse uploaded =
        client.UploadFile(path.toStdWString(), UploadType::Attachment, control, &failure);
    if (uploaded.code == 0)
        upload.file.url =
            client.GetDownloadUrlByFileKey(uploaded.data.fileKey, {control.cancellation, {}}, &failure);
    upload.error = failure.error;
    return upload;
}
