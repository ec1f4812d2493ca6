#pragma once

#include "entity/AppEntities.h"
#include "platform/files/TaskControl.h"
#include "popups/PickableWindow.h"
#include "popups/PopupPicture.h"

#include <functional>
#include <memory>

/// A window that the user reports, with the pictures that go with it.
struct PopupReport {
    /// Puts a file into the organisation's store and returns its key; empty when that failed. Worker threads.
    using Upload = std::function<std::string(const QString& path, const Cancellation& cancellation)>;

    UploadPopupsParams params;
    std::shared_ptr<TempPicture> window; ///< null without a picture
    std::shared_ptr<TempPicture> icon;

    void Describe(const PickableWindow& picked, const ProgramFacts& facts);

    /// Uploads the pictures, one after the other, and removes them. What cannot be uploaded leaves its key
    /// empty. Worker threads.
    static UploadPopupsParams UploadPictures(PopupReport report, const Upload& upload,
                                             const Cancellation& cancellation);

    /// With the web client.
    static std::string UploadToStore(const QString& path, const Cancellation& cancellation);
};
