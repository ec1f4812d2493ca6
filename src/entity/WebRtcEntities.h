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

    RYX_KEYS(isControl, type, sdp);
};

/// The client's session description with the aspect ratio of the shared screen.
struct WebRTCClientSdpInfo final : JsonEntity<WebRTCClientSdpInfo> {
    double aspectRatio = 0.0;
    std::string type;
    std::string sdp;
    std::vector<std::int32_t> apiList;
    std::int32_t error = 0;

    RYX_KEYS(aspectRatio, type, sdp, apiList, error);
};

/// The client's session description as text.
struct WebRTCClientSdpParam final : JsonEntity<WebRTCClientSdpParam> {
    std::string sessionId;
    std::string description;

    RYX_KEYS(sessionId, description);
};

/// The remote side's session description as text.
struct WebRTCRemoteSdpDataRequest final : JsonEntity<WebRTCRemoteSdpDataRequest, OperationCommandRequest> {
    std::string sessionId;
    std::string description;

    RYX_KEYS(sessionId, description);
};

/// One ICE candidate.
struct WebRTCCandidateInfo final : JsonEntity<WebRTCCandidateInfo> {
    std::string candidate;
    std::string sdpMid;
    std::int32_t sdpMlineIndex = 0;

    RYX_KEYS(candidate, sdpMid, sdpMlineIndex);
};

/// The client's ICE candidates and the code of the gathering state.
struct WebRTCClientCandidateParam final : JsonEntity<WebRTCClientCandidateParam> {
    std::vector<std::string> candidates;
    std::int32_t iceGatheringState = 0;
    std::string sessionId;

    RYX_KEYS(candidates, iceGatheringState, sessionId);
};

/// The remote side's ICE candidates.
struct WebRTCRemoteCandidateDataRequest final : JsonEntity<WebRTCRemoteCandidateDataRequest> {
    std::vector<std::string> candidate;
    std::string sessionId;

    RYX_KEYS(candidate, sessionId);
};

/// An error of one session.
struct WebRTCErrorInfo final : JsonEntity<WebRTCErrorInfo> {
    std::string sessionId;
    std::string errorInfo;

    RYX_KEYS(sessionId, errorInfo);
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

    RYX_KEYS(sessionId, maxBitrate, maxFramerate, maxHeight, maxWidth, minBitrate, minFramerate, minHeight,
             minWidth);
};

/// A session to open and the ICE servers for it, both as text.
struct CreateWebRTCParams final : JsonEntity<CreateWebRTCParams> {
    std::string createWebRTC;
    std::string iceServers;

    RYX_KEYS(createWebRTC, iceServers);
};

/// Closes a session.
struct DeleteWebRTCDataRequest final : JsonEntity<DeleteWebRTCDataRequest> {
    std::string sessionId;

    RYX_KEYS(sessionId);
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
        RYX_KEY(id);
        RYX_KEY(serverType);
        RYX_KEY(isPublic);
        RYX_KEY(ip);
        RYX_KEY(userName);
        RYX_KEY(password);
        // Decimal text on the wire.
        key.Read("port", self.port, entity::ReadIntText);
        key.Write("port", std::to_string(self.port));
    };
};

/// The ICE servers.
struct GetIceServersResult final : JsonEntity<GetIceServersResult> {
    std::vector<IceServerInfo> services;

    RYX_KEYS(services);
};

/// Signals screen sharing.
struct ScreenShareDataRequest final : JsonEntity<ScreenShareDataRequest> {
    std::string sessionId;
    std::string message;
    std::int32_t type = 0;
    std::int32_t error = 0;

    RYX_KEYS(sessionId, message, type, error);
};
