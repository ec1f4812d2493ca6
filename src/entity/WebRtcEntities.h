#pragma once

#include "entity/RyxEntity.h"

#include <cstdint>
#include <string>
#include <vector>

// The signalling of remote view and screen sharing over WebRTC.

/// A session description.
struct WebRTCSdpInfo final : JsonEntity<WebRTCSdpInfo> {
    bool isControl = false;
    std::string type;
    std::string sdp;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("isControl", self.isControl);
        key("type", self.type);
        key("sdp", self.sdp);
    };
};

/// The client's session description with the aspect ratio of the shared screen.
struct WebRTCClientSdpInfo final : JsonEntity<WebRTCClientSdpInfo> {
    double aspectRatio = 0.0;
    std::string type;
    std::string sdp;
    std::vector<std::int32_t> apiList;
    std::int32_t error = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("aspectRatio", self.aspectRatio);
        key("type", self.type);
        key("sdp", self.sdp);
        // The error is written before the list.
        key.Write("error", self.error);
        key("apiList", self.apiList);
        key.Read("error", self.error);
    };
};

/// A session description for the client.
struct WebRTCClientSdpParam final : JsonEntity<WebRTCClientSdpParam> {
    std::string sessionId;
    std::string description;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("sessionId", self.sessionId);
        key("description", self.description);
    };
};

/// The remote side's session description.
struct WebRTCRemoteSdpDataRequest final : JsonEntity<WebRTCRemoteSdpDataRequest, OperationCommandRequest> {
    std::string sessionId;
    std::string description;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("sessionId", self.sessionId);
        key("description", self.description);
    };
};

/// One ICE candidate.
struct WebRTCCandidateInfo final : JsonEntity<WebRTCCandidateInfo> {
    std::string candidate;
    std::string sdpMid;
    std::int32_t sdpMlineIndex = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("candidate", self.candidate);
        key("sdpMid", self.sdpMid);
        key("sdpMlineIndex", self.sdpMlineIndex);
    };
};

/// The client's ICE candidates and how far gathering them is.
struct WebRTCClientCandidateParam final : JsonEntity<WebRTCClientCandidateParam> {
    std::vector<std::string> candidates;
    std::int32_t iceGatheringState = 0;
    std::string sessionId;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("candidates", self.candidates);
        // The session is written before the state.
        key.Write("sessionId", self.sessionId);
        key("iceGatheringState", self.iceGatheringState);
        key.Read("sessionId", self.sessionId);
    };
};

/// The remote side's ICE candidates.
struct WebRTCRemoteCandidateDataRequest final : JsonEntity<WebRTCRemoteCandidateDataRequest> {
    std::vector<std::string> candidate;
    std::string sessionId;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("candidate", self.candidate);
        key("sessionId", self.sessionId);
    };
};

/// An error of one session.
struct WebRTCErrorInfo final : JsonEntity<WebRTCErrorInfo> {
    std::string sessionId;
    std::string errorInfo;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("sessionId", self.sessionId);
        key("errorInfo", self.errorInfo);
    };
};

/// Opens a remote-view session within limits of bit rate, frame rate and picture size.
struct CreateWebRTCDataRequest final : JsonEntity<CreateWebRTCDataRequest, OperationCommandRequest> {
    std::string sessionId;
    std::int32_t maxBitrate = 0;
    std::int32_t maxFramerate = 0;
    std::int32_t maxHeight = 0;
    std::int32_t maxWidth = 0;
    std::int32_t minBitrate = 0;
    std::int32_t minFramerate = 0;
    std::int32_t minHeight = 0;
    std::int32_t minWidth = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("sessionId", self.sessionId);
        key("maxBitrate", self.maxBitrate);
        key("maxFramerate", self.maxFramerate);
        key("maxHeight", self.maxHeight);
        key("maxWidth", self.maxWidth);
        key("minBitrate", self.minBitrate);
        key("minFramerate", self.minFramerate);
        key("minHeight", self.minHeight);
        key("minWidth", self.minWidth);
    };
};

/// A session to open and the ICE servers for it, both as JSON text.
struct CreateWebRTCParams final : JsonEntity<CreateWebRTCParams> {
    std::string createWebRTC;
    std::string iceServers;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("createWebRTC", self.createWebRTC);
        key("iceServers", self.iceServers);
    };
};

/// Closes a session.
struct DeleteWebRTCDataRequest final : JsonEntity<DeleteWebRTCDataRequest> {
    std::string sessionId;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("sessionId", self.sessionId); };
};

/// One ICE server.
struct IceServerInfo final : JsonEntity<IceServerInfo> {
    std::int32_t id = 0;
    std::int32_t serverType = 0;
    bool isPublic = false;
    std::string ip;
    std::string userName;
    std::string password;
    std::int32_t port = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("id", self.id);
        key("serverType", self.serverType);
        key("isPublic", self.isPublic);
        key("ip", self.ip);
        // The port is decimal text both ways, and written before the credentials.
        key.Write("port", std::to_string(self.port));
        key("userName", self.userName);
        key("password", self.password);
        key.Read("port", self.port, entity::ReadIntText);
    };
};

/// The ICE servers.
struct GetIceServersResult final : JsonEntity<GetIceServersResult> {
    std::vector<IceServerInfo> services;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("services", self.services); };
};

/// Signals screen sharing.
struct ScreenShareDataRequest final : JsonEntity<ScreenShareDataRequest> {
    std::string sessionId;
    std::string message;
    std::int32_t type = 0;
    std::int32_t error = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        // Written with the type first and the error before the message.
        key.Write("type", self.type);
        key("sessionId", self.sessionId);
        key.Write("error", self.error);
        key("message", self.message);
        key.Read("type", self.type);
        key.Read("error", self.error);
    };
};
