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

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("isNeedUpdate", self.isNeedUpdate);
        key("apkUrl", self.apkUrl);
        key("fileMd5", self.fileMd5);
        key("versionCode", self.versionCode);
    };
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

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("hasUpdate", self.hasUpdate);
        key("isSilentDownload", self.isSilentDownload);
        key("isForceUpdate", self.isForceUpdate);
        key("fileSize", self.fileSize);
        key("policyId", self.policyId);
        key("downloadUrl", self.downloadUrl);
        key("name", self.name);
        key("fileMd5", self.fileMd5);
        key("versionCode", self.versionCode);
        key("updateDesc", self.updateDesc);
    };
};

/// A running download: percent, and the bytes in total and so far.
struct OtaDownloadProgressInfo final : JsonEntity<OtaDownloadProgressInfo> {
    bool finish = false;
    bool success = false;
    std::int32_t progress = 0;
    double dltotal = 0.0;
    double dlcurrent = 0.0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("finish", self.finish);
        key("success", self.success);
        key("progress", self.progress);
        key("dltotal", self.dltotal);
        key("dlcurrent", self.dlcurrent);
    };
};

/// Asks for an available version.
struct UpdateGetDto final : JsonEntity<UpdateGetDto> {
    std::string appKey;
    std::string policyId;
    std::string platform;
    std::string versionCode;
    std::string deviceMac;
    std::string tag;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("appKey", self.appKey);
        key("policyId", self.policyId);
        key("platform", self.platform);
        key("versionCode", self.versionCode);
        key("deviceMac", self.deviceMac);
        key("tag", self.tag);
    };
};

/// The answer to UpdateGetDto.
struct UpdateGetResult final : JsonEntity<UpdateGetResult> {
    std::string status;
    OtaUpdateVersionInfo data;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("status", self.status);
        key("data", self.data);
    };
};

/// Orders an update to a customer's edition.
struct CustomEditionDataRequest final : JsonEntity<CustomEditionDataRequest> {
    bool isNeedUpdate = false;
    std::string url;
    std::string fileMd5;
    std::string versionCode;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("isNeedUpdate", self.isNeedUpdate);
        key("url", self.url);
        key("fileMd5", self.fileMd5);
        key("versionCode", self.versionCode);
    };
};
