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

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("jobStatus", self.jobStatus);
        key("loopTime", self.loopTime);
        key("playDuration", self.playDuration);
        key("operationRight", self.operationRight);
        key("text", self.text);
    };
};

/// One file that the service offers.
struct FileInfoParams final : JsonEntity<FileInfoParams> {
    std::uint64_t fileId = 0;
    std::string md5;
    std::string name;
    std::string url;
    std::string path;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("fileId", self.fileId);
        key("md5", self.md5);
        key("name", self.name);
        key("url", self.url);
        key("path", self.path);
    };
};

/// Sends one file to the device.
struct FileDataRequest final : JsonEntity<FileDataRequest, OperationCommandRequest> {
    FileInfoParams fileInfoParams;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("fileInfoParams", self.fileInfoParams);
    };
};

/// Plays a multimedia file.
struct MultimediaDataRequest final : JsonEntity<MultimediaDataRequest, OperationCommandRequest> {
    bool jobStatus = false;
    std::int32_t loopTime = 0;
    std::int32_t playDuration = 0;
    bool operationRight = false;
    FileInfoParams fileInfoParams;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("jobStatus", self.jobStatus);
        key("loopTime", self.loopTime);
        key("playDuration", self.playDuration);
        key("operationRight", self.operationRight);
        key("fileInfoParams", self.fileInfoParams);
    };
};

/// Rings a bell.
struct BellDataRequest final : JsonEntity<BellDataRequest, OperationCommandRequest> {
    bool jobStatus = false;
    std::int32_t timeMode = 0;
    std::int32_t timeLength = 0;
    FileInfoParams fileInfoParams;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("jobStatus", self.jobStatus);
        key("timeMode", self.timeMode);
        key("timeLength", self.timeLength);
        key("fileInfoParams", self.fileInfoParams);
    };
};

/// Shows an emergency notice.
struct EmergencyDataRequest final : JsonEntity<EmergencyDataRequest, OperationCommandRequest> {
    std::string text;
    FileInfoParams fileInfoParams;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("text", self.text);
        key("fileInfoParams", self.fileInfoParams);
    };
};

/// Sets the wallpaper.
struct WallpaperDataRequest final : JsonEntity<WallpaperDataRequest, OperationCommandRequest> {
    std::int32_t wallpaperMode = 0;
    std::int32_t displayMode = 0;
    FileInfoParams fileInfoParams;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("wallpaperMode", self.wallpaperMode);
        key("displayMode", self.displayMode);
        key("fileInfoParams", self.fileInfoParams);
    };
};

/// Sets the boot logo.
struct BootLogoDataRequest final : JsonEntity<BootLogoDataRequest, OperationCommandRequest> {
    FileInfoParams fileInfoParams;
    std::int32_t logoMode = 0;
    std::int32_t displayMode = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("fileInfoParams", self.fileInfoParams);
        key("logoMode", self.logoMode);
        key("displayMode", self.displayMode);
    };
};

/// One live channel.
struct LiveChannelRequest final : JsonEntity<LiveChannelRequest, OperationCommandRequest> {
    std::int32_t id = 0;
    bool jobStatus = false;
    std::string name;
    std::int32_t playDuration = 0;
    std::string url;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("id", self.id);
        key("jobStatus", self.jobStatus);
        key("name", self.name);
        key("playDuration", self.playDuration);
        key("url", self.url);
    };
};

/// The live channels on offer.
struct LiveChannelListRequest final : JsonEntity<LiveChannelListRequest> {
    std::vector<LiveChannelRequest> liveChannelList;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("liveChannelList", self.liveChannelList);
    };
};
