#pragma once

#include "entity/RyxEntity.h"

#include <cstdint>
#include <string>
#include <vector>

// Applications, their usage, and pop-up blocking.

/// One installed application as it is reported to the service.
struct AppInfo final : JsonEntity<AppInfo> {
    std::string appName;
    std::string packageName;
    std::int32_t versionCode = 0;
    std::int64_t appSize = 0;
    bool isNative = false;
    bool isVisible = false;
    std::string iconFileKey;
    std::string versionName;
    std::int32_t winAppType = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("appName", self.appName);
        key("packageName", self.packageName);
        key("versionCode", self.versionCode);
        key("appSize", self.appSize);
        key("isNative", self.isNative);
        key("isVisible", self.isVisible);
        key("iconFileKey", self.iconFileKey);
        key("versionName", self.versionName);
        key("winAppType", self.winAppType);
    };
};

/// One application package to install.
struct AppInfoParams final : JsonEntity<AppInfoParams> {
    std::int32_t appId = 0;
    std::string md5;
    std::string fileName;
    std::string url;
    std::string appName;
    std::string silentParams;
    std::string mainProgram;
    std::string path;
    std::string installCommand;
    std::string uninstallCommand;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("appId", self.appId);
        // A package cannot be fetched and checked without these two: a body that lacks one does not read.
        key.Read("md5", self.md5, entity::ReadRequiredText);
        key.Write("md5", self.md5);
        key("fileName", self.fileName);
        key.Read("url", self.url, entity::ReadRequiredText);
        key.Write("url", self.url);
        // For this device only, never sent back.
        key.Read("appName", self.appName);
        key.Read("silentParams", self.silentParams);
        key("mainProgram", self.mainProgram);
        key("path", self.path);
        key("installCommand", self.installCommand);
        key("uninstallCommand", self.uninstallCommand);
    };
};

/// The result of an application command.
struct AppInfoParamsDataFeedback final : JsonEntity<AppInfoParamsDataFeedback, OperationCommandRequest> {
    std::string code;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("code", self.code); };
};

/// The applications installed.
struct AppInstallInfo final : JsonEntity<AppInstallInfo, OperationCommandRequest> {
    std::vector<AppInfo> appInfos;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("appInfos", self.appInfos); };
};

/// Removes one application.
struct AppUninstallInfoParams final : JsonEntity<AppUninstallInfoParams, OperationCommandRequest> {
    std::string packageName;
    std::string appLocation;
    std::int32_t winAppType = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("packageName", self.packageName);
        key("appLocation", self.appLocation);
        key("winAppType", self.winAppType);
    };
};

/// Installs or manages one application.
struct AppManageDataRequest final : JsonEntity<AppManageDataRequest, OperationCommandRequest> {
    bool autoLaunching = false;
    AppInfoParams appInfoParams;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("autoLaunching", self.autoLaunching);
        key("appInfoParams", self.appInfoParams);
    };
};

/// Shows or hides one application.
struct SetAppVisibility final : JsonEntity<SetAppVisibility, OperationCommandRequest> {
    std::int32_t appId = 0;
    std::string packageName;
    bool isVisible = false;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("appId", self.appId);
        key("packageName", self.packageName);
        key("isVisible", self.isVisible);
    };
};

/// The usage of one application: its starts and the time in use.
struct DeviceAppUsageInfo final : JsonEntity<DeviceAppUsageInfo> {
    std::string packageName;
    std::int32_t versionCode = 0;
    std::string appName;
    std::string versionName;
    std::int32_t openTimes = 0;
    std::int32_t duration = 0;
    std::string iconFileKey;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("packageName", self.packageName);
        key("versionCode", self.versionCode);
        key("appName", self.appName);
        key("versionName", self.versionName);
        key("openTimes", self.openTimes);
        key("duration", self.duration);
        key("iconFileKey", self.iconFileKey);
    };
};

/// The usage of applications on one day.
struct DeviceAppUsage final : JsonEntity<DeviceAppUsage> {
    std::vector<DeviceAppUsageInfo> deviceAppUsageList;
    std::string date;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("deviceAppUsageList", self.deviceAppUsageList);
        key("date", self.date);
    };
};

/// The identity of one pop-up window: its application, title, window class, product name, signer and folder.
struct PopupsTypeParams final : JsonEntity<PopupsTypeParams> {
    std::string appName;
    std::string popName;
    std::string popClassName;
    std::string popProductName;
    std::string popSignName;
    std::string popDirectory;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("appName", self.appName);
        key("popName", self.popName);
        key("popClassName", self.popClassName);
        key("popProductName", self.popProductName);
        key("popSignName", self.popSignName);
        key("popDirectory", self.popDirectory);
    };
};

/// The pop-up blocking counters.
struct PopupsBlockDetailsParams final : JsonEntity<PopupsBlockDetailsParams> {
    bool popStatus = false;
    std::int32_t blockNum = 0;
    std::int32_t popupsNum = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("popStatus", self.popStatus);
        key("blockNum", self.blockNum);
        key("popupsNum", self.popupsNum);
    };
};

/// The pop-up blocking rules.
struct SyncPopupsParams final : JsonEntity<SyncPopupsParams> {
    bool popStatus = false;
    bool hasOne = false;
    bool enable = false;
    std::vector<PopupsTypeParams> popupsDetails;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("popStatus", self.popStatus);
        key("hasOne", self.hasOne);
        key("enable", self.enable);
        key("popupsDetails", self.popupsDetails);
    };
};

/// One detected pop-up, with the file-store keys of its picture and its application's icon.
struct UploadPopupsParams final : JsonEntity<UploadPopupsParams> {
    std::int32_t type = 0;
    std::string appName;
    std::string popName;
    std::string popClassName;
    std::string popProductName;
    std::string popSignName;
    std::string popDirectory;
    std::string popFileKey;
    std::int64_t updateTime = 0;
    std::string appFileKey;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("type", self.type);
        key("appName", self.appName);
        key("popName", self.popName);
        key("popClassName", self.popClassName);
        key("popProductName", self.popProductName);
        key("popSignName", self.popSignName);
        key("popDirectory", self.popDirectory);
        key("popFileKey", self.popFileKey);
        key("updateTime", self.updateTime);
        key("appFileKey", self.appFileKey);
    };
};

/// The default allow list.
struct SyncWhiteListParam final : JsonEntity<SyncWhiteListParam, OperationCommandRequest> {
    std::vector<std::string> defaultWhitelist;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("defaultWhitelist", self.defaultWhitelist);
    };
};
