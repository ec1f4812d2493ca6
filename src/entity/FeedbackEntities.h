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

    RYX_KEYS(version, os, osVersion, customerChannel, model, deviceType, platform, screenSize, isMadeInVorn,
             appFlavor);
};

/// An attached file.
struct FileDto final : JsonEntity<FileDto> {
    std::string name;
    std::string url;

    RYX_KEYS(name, url);
};

/// The feedback form that is sent to the service.
struct WebFeedbackDto final : JsonEntity<WebFeedbackDto> {
    std::string email;
    std::string content;
    std::string title;
    std::string platform;
    std::vector<FileDto> pictures;
    std::vector<FileDto> annex;

    RYX_KEYS(email, content, title, platform, pictures, annex);
};

/// Ties an uploaded log to a feedback.
struct ReportFeedbackLog final : JsonEntity<ReportFeedbackLog> {
    std::int32_t feedbackId = 0;
    std::string logCode;
    std::string logName;

    RYX_KEYS(feedbackId, logCode, logName);
};

/// Asks for the log of a feedback.
struct PullFeedbackLog final : JsonEntity<PullFeedbackLog> {
    std::int32_t feedbackId = 0;

    RYX_KEYS(feedbackId);
};

/// Ties an uploaded file to a bug log.
struct ReportBugLogInfo final : JsonEntity<ReportBugLogInfo, OperationCommandRequest> {
    std::string traceId;
    std::string fileKey;

    RYX_KEYS(traceId, fileKey);
};

/// Asks for a bug log.
struct ExportBugLogInfo final : JsonEntity<ExportBugLogInfo, OperationCommandRequest> {
    std::string traceId;

    RYX_KEYS(traceId);
};

/// The answer to the notice of a device log's upload.
struct NotifyDeviceLogUploadResponse final : JsonEntity<NotifyDeviceLogUploadResponse> {
    std::string data;
    std::string status;

    RYX_KEYS(data, status);
};

/// One name and value of an upload request.
struct NubraFieldInfo final : JsonEntity<NubraFieldInfo> {
    std::string name;
    std::string value;

    RYX_KEYS(name, value);
};

/// One file in the file store.
struct NubraFileInfo final : JsonEntity<NubraFileInfo> {
    std::string fileKey;
    std::string downloadUrl;

    RYX_KEYS(fileKey, downloadUrl);
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

    RYX_KEYS(httpMethod, uploadUrl, needCallServer, keyInfoFields, headerFields, formFields,
             needExtractHeaderNames);
};

/// The body of NubraUploadPolicyResponse.
struct NubraUploadPolicyData final : JsonEntity<NubraUploadPolicyData> {
    std::string fileKey;
    NubraUploadPolicy uploadPolicyVo;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        RYX_KEY(fileKey);
        // Anything but an object leaves the policy as it is.
        key.Read("uploadPolicyVo", self.uploadPolicyVo, entity::ReadIfObject);
        key.Write("uploadPolicyVo", self.uploadPolicyVo);
    };
};

/// The file store's answer to a request for an upload policy.
struct NubraUploadPolicyResponse final : JsonEntity<NubraUploadPolicyResponse> {
    std::string status;
    NubraUploadPolicyData data;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        RYX_KEY(status);
        // Anything but an object leaves the file key and the policy as they are.
        key.Read("data", self.data, entity::ReadIfObject);
        key.Write("data", self.data);
    };
};

/// The uploaded file.
struct NubraUploadResult final : JsonEntity<NubraUploadResult> {
    std::string downloadUrl;
    std::string fileKey;
    std::int32_t fileSize = 0;

    RYX_KEYS(downloadUrl, fileKey, fileSize);
};

/// The file store's answer to an upload.
struct NubraUploadResponse final : JsonEntity<NubraUploadResponse> {
    std::int32_t code = 0;
    std::string message;
    NubraUploadResult data;

    RYX_KEYS(code, message, data);
};

/// The file store's answer to the notice of a finished upload.
struct NubraNotifyUploadResultResponse final : JsonEntity<NubraNotifyUploadResultResponse> {
    std::string status;
    NubraFileInfo data;

    RYX_KEYS(status, data);
};
