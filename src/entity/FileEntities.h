#pragma once

#include "entity/DeviceTaskEntities.h"
#include "entity/FeedbackEntities.h"
#include "entity/RyxEntity.h"
#include "entity/UpdateEntities.h"

#include <cstdint>
#include <string>
#include <vector>

// Messages, files and live channels that the administrator pushes to the screen.

/// Shows a text message.
struct TextDataRequest final : JsonEntity<TextDataRequest, OperationCommandRequest> {
    bool jobStatus = false;
    std::int32_t loopTime = 0;
    std::int32_t playDuration = 0;
    bool operationRight = false;
    std::string text;

    RYX_KEYS(jobStatus, loopTime, playDuration, operationRight, text);
};

/// One file that the service offers.
struct FileInfoParams final : JsonEntity<FileInfoParams> {
    std::uint64_t fileId = 0;
    std::string md5;
    std::string name;
    std::string url;
    std::string path;

    RYX_KEYS(fileId, md5, name, url, path);
};

/// Sends one file to the device.
struct FileDataRequest final : JsonEntity<FileDataRequest, OperationCommandRequest> {
    FileInfoParams fileInfoParams;

    RYX_KEYS(fileInfoParams);
};

/// Plays a multimedia file.
struct MultimediaDataRequest final : JsonEntity<MultimediaDataRequest, OperationCommandRequest> {
    bool jobStatus = false;
    std::int32_t loopTime = 0;
    std::int32_t playDuration = 0;
    bool operationRight = false;
    FileInfoParams fileInfoParams;

    RYX_KEYS(jobStatus, loopTime, playDuration, operationRight, fileInfoParams);
};

/// Rings a bell.
struct BellDataRequest final : JsonEntity<BellDataRequest, OperationCommandRequest> {
    bool jobStatus = false;
    std::int32_t timeMode = 0;
    std::int32_t timeLength = 0;
    FileInfoParams fileInfoParams;

    RYX_KEYS(jobStatus, timeMode, timeLength, fileInfoParams);
};

/// Shows an emergency notice.
struct EmergencyDataRequest final : JsonEntity<EmergencyDataRequest, OperationCommandRequest> {
    std::string text;
    FileInfoParams fileInfoParams;

    RYX_KEYS(text, fileInfoParams);
};

/// Sets the wallpaper.
struct WallpaperDataRequest final : JsonEntity<WallpaperDataRequest, OperationCommandRequest> {
    std::int32_t wallpaperMode = 0;
    std::int32_t displayMode = 0;
    FileInfoParams fileInfoParams;

    RYX_KEYS(wallpaperMode, displayMode, fileInfoParams);
};

/// Sets the boot logo.
struct BootLogoDataRequest final : JsonEntity<BootLogoDataRequest, OperationCommandRequest> {
    FileInfoParams fileInfoParams;
    std::int32_t logoMode = 0;
    std::int32_t displayMode = 0;

    RYX_KEYS(fileInfoParams, logoMode, displayMode);
};

/// One live channel.
struct LiveChannelRequest final : JsonEntity<LiveChannelRequest, OperationCommandRequest> {
    std::int32_t id = 0;
    bool jobStatus = false;
    std::string name;
    std::int32_t playDuration = 0;
    std::string url;

    RYX_KEYS(id, jobStatus, name, playDuration, url);
};

/// The live channels on offer.
struct LiveChannelListRequest final : JsonEntity<LiveChannelListRequest> {
    std::vector<LiveChannelRequest> liveChannelList;

    RYX_KEYS(liveChannelList);
};
