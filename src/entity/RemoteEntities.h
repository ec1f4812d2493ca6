#pragma once

#include "entity/RyxEntity.h"
#include "entity/WebRtcEntities.h"

#include <cstdint>
#include <string>
#include <vector>

// External devices, channels and wake-on-LAN.

/// Base of the bodies that concern one external device.
struct ExternalDeviceKey : JsonEntity<ExternalDeviceKey> {
    std::string deviceKey;

    RYX_KEYS(deviceKey);
};

/// Opens a session with one camera of an external device.
struct CreateVideoWebRTC final : JsonEntity<CreateVideoWebRTC, ExternalDeviceKey> {
    std::string sessionId;
    std::int32_t maxBitrate = 0;
    std::int32_t maxFramerate = 0;
    std::int32_t maxHeight = 0;
    std::int32_t maxWidth = 0;
    std::int32_t minBitrate = 0;
    std::int32_t minFramerate = 0;
    std::int32_t minHeight = 0;
    std::int32_t minWidth = 0;
    std::string cameraId;
    std::string iceReturnData;

    RYX_KEYS(sessionId, maxBitrate, maxFramerate, maxHeight, maxWidth, minBitrate, minFramerate, minHeight,
             minWidth, cameraId, iceReturnData);
};

/// An external device.
struct ExternalDeviceInfo final : JsonEntity<ExternalDeviceInfo> {
    std::string name;

    RYX_KEYS(name);
};

/// The audio of an external device.
struct ExternalDeviceAudio final : JsonEntity<ExternalDeviceAudio> {
    bool speakers = false;

    RYX_KEYS(speakers);
};

/// The firmware of an external device.
struct ExternalDeviceFirmware final : JsonEntity<ExternalDeviceFirmware> {
    std::string version;
    std::string appKey;
    bool updateOnline = false;

    RYX_KEYS(version, appKey, updateOnline);
};

/// Orders an update of an external device's firmware.
struct ExternalDeviceFirmwareUpdate final : JsonEntity<ExternalDeviceFirmwareUpdate, ExternalDeviceKey> {
    std::string url;
    std::string md5;
    std::string name;

    RYX_KEYS(url, md5, name);
};

/// The answer to a command to an external device.
struct ExternalDeviceControlFeedback final : JsonEntity<ExternalDeviceControlFeedback, ExternalDeviceKey> {
    std::string functionName;
    std::string code;
    std::string result;

    RYX_KEYS(functionName, code, result);
};

/// Sets one parameter of an external device.
struct SetExternalDeviceParams final : JsonEntity<SetExternalDeviceParams, ExternalDeviceKey> {
    std::string paramsName;
    std::string paramsValue;
    std::string functionName;

    RYX_KEYS(paramsName, paramsValue, functionName);
};

/// One parameter of an external device.
struct ExternalDeviceParam final : JsonEntity<ExternalDeviceParam> {
    std::string paramsName;
    std::string paramsValue;
    std::string functionName;

    RYX_KEYS(paramsName, paramsValue, functionName);
};

/// Resets several parameters of an external device.
struct ResetExternalDeviceParams final : JsonEntity<ResetExternalDeviceParams, ExternalDeviceKey> {
    std::vector<ExternalDeviceParam> paramList;

    RYX_KEYS(paramList);
};

/// The channel to switch to.
struct ChannelCommandParams final : JsonEntity<ChannelCommandParams> {
    std::string channelName;
    std::int32_t channelId = 0;

    RYX_KEYS(channelName, channelId);
};

/// Switches the channel.
struct ChannelSwitchParams final : JsonEntity<ChannelSwitchParams> {
    ChannelCommandParams channelCommandParams;

    RYX_KEYS(channelCommandParams);
};

/// One channel and whether it is locked.
struct DeviceChannelParams final : JsonEntity<DeviceChannelParams> {
    std::string name;
    bool isLock = false;

    RYX_KEYS(name, isLock);
};

/// The device's channels and the current one.
struct DeviceChannelInfo final : JsonEntity<DeviceChannelInfo> {
    std::vector<DeviceChannelParams> deviceChannelParams;
    std::string onChannel;

    RYX_KEYS(deviceChannelParams, onChannel);
};

/// The wake server's record; its keys are capitalised.
struct WakeServerData final : JsonEntity<WakeServerData> {
    std::uint64_t Id = 0;
    std::string BindingCode;
    std::string Uid;
    std::string ServerName;
    std::string TimeSpan;

    RYX_KEYS(Id, BindingCode, Uid, ServerName, TimeSpan);
};

/// State of the binding to a wake server.
struct WakeServerInfo final : JsonEntity<WakeServerInfo> {
    std::string wakeServerName;
    bool isOnLine = false;
    std::int32_t code = 0;

    RYX_KEYS(wakeServerName, isOnLine, code);
};

/// The wake server of a device, with the identifiers of the operation.
struct DeviceWakeServer final : JsonEntity<DeviceWakeServer> {
    std::int32_t operationDeviceLogId = 0;
    std::int32_t operationId = 0;
    WakeServerInfo wakeServerEntity;

    RYX_KEYS(operationDeviceLogId, operationId, wakeServerEntity);
};

/// Asks for a wake packet to one machine.
struct SendWolParams final : JsonEntity<SendWolParams> {
    std::string mac;
    std::string ip;

    RYX_KEYS(mac, ip);
};

/// Several machines to wake, in one text.
struct DeviceWolParams final : JsonEntity<DeviceWolParams> {
    std::string macsAndIps;

    RYX_KEYS(macsAndIps);
};
