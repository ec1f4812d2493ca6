#pragma once

#include "entity/FeedbackEntities.h"
#include "platform/files/TaskControl.h"
#include "platform/web/WebSettings.h"

#include <mutex>
#include <string>

/// Why a call of the web client failed, as far as a user can tell the difference.
enum class WebError {
    None,
    Cancelled,     ///< the caller's wish
    NotConfigured, ///< the configuration names no service, or not how it can be reached
    Unreachable,   ///< no connection, or it broke
    NotTrusted,    ///< the server could not prove who it is
    NotAllowed,    ///< an address is neither https nor allowed, or the server redirects to another host
    TimedOut,      ///< silence, or the call's time was over
    Refused,       ///< the service answered with an error
    BadAnswer,     ///< the answer is not what it should be, or is too large
    File,          ///< the file cannot be read or written, or changed while it was read
    TooLarge,      ///< the file is larger than the caller allows
    WrongDigest,   ///< the file is not the one that was promised
    Internal,      ///< the program's own fault, such as a call on the GUI thread
};

/// How a call failed.
struct WebFailure {
    WebError error = WebError::None;
    std::string words;     ///< English, for the log; may contain what the service said
    std::string said = {}; ///< by the service itself, for the user; empty when it said nothing
};

/// What a file is to the file store.
enum class UploadType { DeviceLog, Attachment, Picture };

/// A file to fetch.
struct DownloadRequest {
    std::string url;
    std::wstring target;       ///< path; a file that stands there is replaced once the new one is whole
    std::int64_t maxBytes = 0; ///< a larger file is refused
    std::string md5;           ///< in hexadecimal digits; empty: not checked
};

/// Client of the organisation's web services: file store, device logs, feedback (docs/web-service.md).
///
/// The calls block until they are through. They belong on worker threads, several at a time if need be; on
/// the GUI thread they fail at once. Each ends within the configured limits and, when it is cancelled, within
/// a tenth of a second. A failure is logged, told by the result, and described in `failure` if that is given.
class RyxWebClient {
public:
    static RyxWebClient* Instance();

    /// Takes the settings for every call that begins from now on. GUI thread, at start.
    void Configure(const WebSettings& settings);

    /// Uploads a file to the file store, as the store's policy for it says, and gives notice of it when the
    /// policy wants that. The response's code is 0 if and only if the store has the file; then `data` tells
    /// its key, its size and, as far as the store told one, its address. Otherwise the code is -1 and the
    /// message says why. Progress counts the file's bytes.
    NubraUploadResponse UploadFile(const std::wstring& path, UploadType type, const TaskControl& control = {},
                                   WebFailure* failure = nullptr) const;

    /// Registers an uploaded file as a log of the device, which the context string of the service identifies.
    /// The result names the file key and the address at which the service lists the log; it has no address
    /// when that failed.
    FileDto NotifyDeviceLogUpload(const std::string& device, const std::string& fileKey,
                                  const TaskControl& control = {}, WebFailure* failure = nullptr) const;

    /// The address from which an uploaded file can be fetched; empty when that failed.
    std::string GetDownloadUrlByFileKey(const std::string& fileKey, const TaskControl& control = {},
                                        WebFailure* failure = nullptr) const;

    /// Sends a feedback document; never a second time, whatever happens. True when the service has taken it:
    /// then `message` is what it said. Otherwise `message` is the failure's words.
    bool Feedback(const std::string& json, std::string& message, const TaskControl& control = {},
                  WebFailure* failure = nullptr) const;

    /// Fetches a file. It is written beside the target and takes its place when size and digest are right;
    /// nothing else is left behind.
    bool DownloadFile(const DownloadRequest& request, const TaskControl& control = {},
                      WebFailure* failure = nullptr) const;

private:
    WebSettings Settings() const;

    mutable std::mutex m_mutex; // guards m_settings
    WebSettings m_settings;
};
