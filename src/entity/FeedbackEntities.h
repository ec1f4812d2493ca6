#pragma once

#include "entity/RyxEntity.h"

#include <cstdint>
#include <string>
#include <vector>

// Feedback, logs, and their upload to the service's file store.

/// The description of the device that goes with feedback.
struct ReportInfoDto final : JsonEntity<ReportInfoDto> {
    std::string version;
    std::string os;
    std::string osVersion;
    std::string customerChannel;
    std::string model;
    std::string deviceType;
    std::string platform;
    std::string screenSize;
    bool isMadeInVorn = false;
    std::string appFlavor;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("version", self.version);
        key("os", self.os);
        key("osVersion", self.osVersion);
        key("customerChannel", self.customerChannel);
        key("model", self.model);
        key("deviceType", self.deviceType);
        key("platform", self.platform);
        key("screenSize", self.screenSize);
        key("isMadeInVorn", self.isMadeInVorn);
        key("appFlavor", self.appFlavor);
    };
};

/// An attached file.
struct FileDto final : JsonEntity<FileDto> {
    std::string name;
    std::string url;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("name", self.name);
        key("url", self.url);
    };
};

/// The feedback form that is sent to the service.
struct WebFeedbackDto final : JsonEntity<WebFeedbackDto> {
    std::string email;
    std::string content;
    std::string title;
    std::string platform;
    std::vector<FileDto> pictures;
    std::vector<FileDto> annex;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("email", self.email);
        key("content", self.content);
        key("title", self.title);
        key("platform", self.platform);
        key("pictures", self.pictures);
        key("annex", self.annex);
    };
};

/// Ties an uploaded log to a feedback.
struct ReportFeedbackLog final : JsonEntity<ReportFeedbackLog> {
    std::int32_t feedbackId = 0;
    std::string logCode;
    std::string logName;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("feedbackId", self.feedbackId);
        key("logCode", self.logCode);
        key("logName", self.logName);
    };
};

/// Asks for the log of a feedback.
struct PullFeedbackLog final : JsonEntity<PullFeedbackLog> {
    std::int32_t feedbackId = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("feedbackId", self.feedbackId); };
};

/// Ties an uploaded file to a bug log.
struct ReportBugLogInfo final : JsonEntity<ReportBugLogInfo, OperationCommandRequest> {
    std::string traceId;
    std::string fileKey;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("traceId", self.traceId);
        key("fileKey", self.fileKey);
    };
};

/// Asks for a bug log.
struct ExportBugLogInfo final : JsonEntity<ExportBugLogInfo, OperationCommandRequest> {
    std::string traceId;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("traceId", self.traceId); };
};

/// The service's answer to the notice of an uploaded log.
struct NotifyDeviceLogUploadResponse final : JsonEntity<NotifyDeviceLogUploadResponse> {
    std::string data;
    std::string status;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("data", self.data);
        key("status", self.status);
    };
};

/// One name and value of an upload request.
struct NubraFieldInfo final : JsonEntity<NubraFieldInfo> {
    std::string name;
    std::string value;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("name", self.name);
        key("value", self.value);
    };
};

/// One file in the file store.
struct NubraFileInfo final : JsonEntity<NubraFileInfo> {
    std::string fileKey;
    std::string downloadUrl;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("fileKey", self.fileKey);
        key("downloadUrl", self.downloadUrl);
    };
};

/// How to upload a file: the request's key fields, headers and form fields, and the response headers to pick
/// up.
struct NubraUploadPolicy final : JsonEntity<NubraUploadPolicy> {
    std::string httpMethod;
    std::string uploadUrl;
    bool needCallServer = false;
    std::vector<NubraFieldInfo> keyInfoFields;
    std::vector<NubraFieldInfo> headerFields;
    std::vector<NubraFieldInfo> formFields;
    std::vector<std::string> needExtractHeaderNames;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("httpMethod", self.httpMethod);
        key("uploadUrl", self.uploadUrl);
        key("needCallServer", self.needCallServer);
        key("keyInfoFields", self.keyInfoFields);
        key("headerFields", self.headerFields);
        key("formFields", self.formFields);
        key("needExtractHeaderNames", self.needExtractHeaderNames);
    };
};

/// The body of NubraUploadPolicyResponse.
struct NubraUploadPolicyData final : JsonEntity<NubraUploadPolicyData> {
    std::string fileKey;
    NubraUploadPolicy uploadPolicyVo;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("fileKey", self.fileKey);
        // An answer without a policy leaves the one at hand alone.
        key.Read("uploadPolicyVo", self.uploadPolicyVo, entity::ReadIfObject);
        key.Write("uploadPolicyVo", self.uploadPolicyVo);
    };
};

/// The file store's answer to a request for an upload policy.
struct NubraUploadPolicyResponse final : JsonEntity<NubraUploadPolicyResponse> {
    std::string status;
    NubraUploadPolicyData data;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("status", self.status);
        // A refusal has no data and leaves the file key and the policy at hand alone.
        key.Read("data", self.data, entity::ReadIfObject);
        key.Write("data", self.data);
    };
};

/// The file that an upload made.
struct NubraUploadResult final : JsonEntity<NubraUploadResult> {
    std::string downloadUrl;
    std::string fileKey;
    std::int32_t fileSize = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("downloadUrl", self.downloadUrl);
        key("fileKey", self.fileKey);
        key("fileSize", self.fileSize);
    };
};

/// The file store's answer to an upload.
struct NubraUploadResponse final : JsonEntity<NubraUploadResponse> {
    std::int32_t code = 0;
    std::string message;
    NubraUploadResult data;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("code", self.code);
        key("message", self.message);
        key("data", self.data);
    };
};

/// The file store's answer to the notice of a finished upload.
struct NubraNotifyUploadResultResponse final : JsonEntity<NubraNotifyUploadResultResponse> {
    std::string status;
    NubraFileInfo data;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("status", self.status);
        key("data", self.data);
    };
};
