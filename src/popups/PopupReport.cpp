#include "popups/PopupReport.h"

#include "platform/web/RyxWebClient.h"

#include <QFile>

void PopupReport::Describe(const PickableWindow& picked, const ProgramFacts& facts) {
    params = {};
    params.appName = picked.FileName().toStdString();
    params.popName = picked.title.toStdString();
    params.popClassName = picked.className.toStdString();
    params.popProductName = facts.product.toStdString();
    params.popSignName = facts.signer.toStdString();
    params.popDirectory = picked.Directory().toStdString();
}

UploadPopupsParams PopupReport::UploadPictures(PopupReport report, const Upload& upload,
                                               const Cancellation& cancellation) {
    const auto keyOf = [&](std::shared_ptr<TempPicture>& picture) {
        std::string key;
        if (picture && QFile::exists(picture->Path()) && !cancellation.IsCancelled())
            key = upload(picture->Path(), cancellation);
        picture.reset();
        return key;
    };
    report.params.popFileKey = keyOf(report.window);
    report.params.appFileKey = keyOf(report.icon);
    return report.params;
}

std::string PopupReport::UploadToStore(const QString& path, const Cancellation& cancellation) {
    const NubraUploadResponse answer =
        RyxWebClient::Instance()->UploadFile(path.toStdWString(), UploadType::Picture, {cancellation, {}});
    return answer.code == 0 ? answer.data.fileKey : std::string();
}
