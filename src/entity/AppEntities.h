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

    RYX_KEYS(appName, packageName, versionCode, appSize, isNative, isVisible, iconFileKey, versionName,
             winAppType);
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
        RYX_KEY(appId);
        // The two ReadRequiredText keys must be there: a body that lacks one does not read.
        key.Read("md5", self.md5, entity::ReadRequiredText);
        key.Write("md5", self.md5);
        RYX_KEY(fileName);
        key.Read("url", self.url, entity::ReadRequiredText);
        key.Write("url", self.url);
        // Never written.
        key.Read("appName", self.appName);
        key.Read("silentParams", self.silentParams);
        RYX_KEY(mainProgram);
        RYX_KEY(path);
        RYX_KEY(installCommand);
        RYX_KEY(uninstallCommand);
    };
};

/// The result of an application command.
struct AppInfoParamsDataFeedback final : JsonEntity<AppInfoParamsDataFeedback, OperationCommandRequest> {
    std::string code;

    RYX_KEYS(code);
};

/// The applications installed.
struct AppInstallInfo final : JsonEntity<AppInstallInfo, OperationCommandRequest> {
    std::vector<AppInfo> appInfos;

    RYX_KEYS(appInfos);
};

/// Removes one application.
struct AppUninstallInfoParams final : JsonEntity<AppUninstallInfoParams, OperationCommandRequest> {
    std::string packageName;
    std::string appLocation;
    std::int32_t winAppType = 0;

    RYX_KEYS(packageName, appLocation, winAppType);
};

/// Installs or manages one application.
struct AppManageDataRequest final : JsonEntity<AppManageDataRequest, OperationCommandRequest> {
    bool autoLaunching = false;
    AppInfoParams appInfoParams;

    RYX_KEYS(autoLaunching, appInfoParams);
};

/// Shows or hides one application.
struct SetAppVisibility final : JsonEntity<SetAppVisibility, OperationCommandRequest> {
    std::int32_t appId = 0;
    std::string packageName;
    bool isVisible = false;

    RYX_KEYS(appId, packageName, isVisible);
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

    RYX_KEYS(packageName, versionCode, appName, versionName, openTimes, duration, iconFileKey);
};

/// The usage of applications on one day.
struct DeviceAppUsage final : JsonEntity<DeviceAppUsage> {
    std::vector<DeviceAppUsageInfo> deviceAppUsageList;
    std::string date;

    RYX_KEYS(deviceAppUsageList, date);
};

/// The identity of one pop-up window: its application, title, window class, product name, signer and folder.
struct PopupsTypeParams final : JsonEntity<PopupsTypeParams> {
    std::string appName;
    std::string popName;
    std::string popClassName;
    std::string popProductName;
    std::string popSignName;
    std::string popDirectory;

    RYX_KEYS(appName, popName, popClassName, popProductName, popSignName, popDirectory);
};

/// The pop-up blocking counters.
struct PopupsBlockDetailsParams final : JsonEntity<PopupsBlockDetailsParams> {
    bool popStatus = false;
    std::int32_t blockNum = 0;
    std::int32_t popupsNum = 0;

    RYX_KEYS(popStatus, blockNum, popupsNum);
};

/// The pop-up blocking rules: a whole list, or one change to the list that is in force.
struct SyncPopupsParams final : JsonEntity<SyncPopupsParams> {
    bool popStatus = false; ///< Whether blocking is on.
    bool hasOne = false;    ///< The list is one change: its first rule is added or removed.
    bool enable = false;    ///< Whether the one change adds its rule; otherwise it removes it.
    std::vector<PopupsTypeParams> popupsDetails;

    RYX_KEYS(popStatus, hasOne, enable, popupsDetails);
};

/// One detected pop-up, with the file-store keys of the pop-up and of its application.
struct UploadPopupsParams final : JsonEntity<UploadPopupsParams> {
    std::int32_t type = 0;
    std::string appName;
    std::string popName;
    std::string popClassName;
    std::string popProductName;
    std::string popSignName;
    std::string popDirectory;
    std::string popFileKey;
    std::int64_t updateTime = 0; ///< Milliseconds since 1970, UTC.
    std::string appFileKey;

    RYX_KEYS(type, appName, popName, popClassName, popProductName, popSignName, popDirectory, popFileKey,
             updateTime, appFileKey);
};

/// The default allow list.
struct SyncWhiteListParam final : JsonEntity<SyncWhiteListParam, OperationCommandRequest> {
    std::vector<std::string> defaultWhitelist;

    RYX_KEYS(defaultWhitelist);
};
