#pragma once

#include "entity/RyxEntity.h"

#include <cstdint>
#include <string>
#include <vector>

// The software update exchange.

/// Orders a software update.
struct OtaUpdateDataRequest final : JsonEntity<OtaUpdateDataRequest, OperationCommandRequest> {
    bool isNeedUpdate = false;
    std::string apkUrl;
    std::string fileMd5;
    std::string versionCode;

    RYX_KEYS(isNeedUpdate, apkUrl, fileMd5, versionCode);
};

/// A version that is available; `versionCode` is text.
struct OtaUpdateVersionInfo final : JsonEntity<OtaUpdateVersionInfo> {
    bool hasUpdate = false;
    bool isSilentDownload = false;
    bool isForceUpdate = false;
    std::int64_t fileSize = 0;
    std::string policyId;
    std::string downloadUrl;
    std::string name;
    std::string fileMd5;
    std::string versionCode;
    std::string updateDesc;

    RYX_KEYS(hasUpdate, isSilentDownload, isForceUpdate, fileSize, policyId, downloadUrl, name, fileMd5,
             versionCode, updateDesc);
};

/// A running download: its progress, and its size in total and so far.
struct OtaDownloadProgressInfo final : JsonEntity<OtaDownloadProgressInfo> {
    bool finish = false;
    bool success = false;
    std::int32_t progress = 0;
    double dltotal = 0.0;
    double dlcurrent = 0.0;

    RYX_KEYS(finish, success, progress, dltotal, dlcurrent);
};

/// Asks for an available version.
struct UpdateGetDto final : JsonEntity<UpdateGetDto> {
    std::string appKey;
    std::string policyId;
    std::string platform;
    std::string versionCode;
    std::string deviceMac;
    std::string tag;

    RYX_KEYS(appKey, policyId, platform, versionCode, deviceMac, tag);
};

/// The answer to UpdateGetDto.
struct UpdateGetResult final : JsonEntity<UpdateGetResult> {
    std::string status;
    OtaUpdateVersionInfo data;

    RYX_KEYS(status, data);
};

/// Orders an update to a custom edition.
struct CustomEditionDataRequest final : JsonEntity<CustomEditionDataRequest> {
    bool isNeedUpdate = false;
    std::string url;
    std::string fileMd5;
    std::string versionCode;

    RYX_KEYS(isNeedUpdate, url, fileMd5, versionCode);
};
