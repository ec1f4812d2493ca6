#pragma once

#include "entity/RyxEntity.h"
#include "entity/WebRtcEntities.h"

#include <cstdint>
#include <string>
#include <vector>

// External devices, channels and wake-on-LAN.

/// Base of the bodies that concern one external device.
///
/// Derived bodies read the key through this base and write it themselves, as their first key.
struct ExternalDeviceKey : JsonEntity<ExternalDeviceKey> {
    std::string deviceKey;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("deviceKey", self.deviceKey); };
};

/// Opens a session with one camera of an external device.
struct CreateVideoWebRTC final : JsonEntity<CreateVideoWebRTC, ExternalDeviceKey, BaseKeys::OnlyRead> {
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

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key.Write("deviceKey", self.deviceKey);
        key("sessionId", self.sessionId);
        key("maxBitrate", self.maxBitrate);
        key("maxFramerate", self.maxFramerate);
        key("maxHeight", self.maxHeight);
        key("maxWidth", self.maxWidth);
        key("minBitrate", self.minBitrate);
        key("minFramerate", self.minFramerate);
        key("minHeight", self.minHeight);
        key("minWidth", self.minWidth);
        key("cameraId", self.cameraId);
        key("iceReturnData", self.iceReturnData);
    };
};

/// An external device.
struct ExternalDeviceInfo final : JsonEntity<ExternalDeviceInfo> {
    std::string name;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("name", self.name); };
};

/// Whether an external device has speakers.
struct ExternalDeviceAudio final : JsonEntity<ExternalDeviceAudio> {
    bool speakers = false;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("speakers", self.speakers); };
};

/// The firmware of an external device.
struct ExternalDeviceFirmware final : JsonEntity<ExternalDeviceFirmware> {
    std::string version;
    std::string appKey;
    bool updateOnline = false;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("version", self.version);
        key("appKey", self.appKey);
        key("updateOnline", self.updateOnline);
    };
};

/// Orders an update of an external device's firmware.
struct ExternalDeviceFirmwareUpdate final
    : JsonEntity<ExternalDeviceFirmwareUpdate, ExternalDeviceKey, BaseKeys::OnlyRead> {
    std::string url;
    std::string md5;
    std::string name;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key.Write("deviceKey", self.deviceKey);
        key("url", self.url);
        key("md5", self.md5);
        key("name", self.name);
    };
};

/// The answer to a command to an external device.
struct ExternalDeviceControlFeedback final
    : JsonEntity<ExternalDeviceControlFeedback, ExternalDeviceKey, BaseKeys::OnlyRead> {
    std::string functionName;
    std::string code;
    std::string result;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key.Write("deviceKey", self.deviceKey);
        key("functionName", self.functionName);
        key("code", self.code);
        key("result", self.result);
    };
};

/// Sets one parameter of an external device.
struct SetExternalDeviceParams final
    : JsonEntity<SetExternalDeviceParams, ExternalDeviceKey, BaseKeys::OnlyRead> {
    std::string paramsName;
    std::string paramsValue;
    std::string functionName;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key.Write("deviceKey", self.deviceKey);
        key("paramsName", self.paramsName);
        key("paramsValue", self.paramsValue);
        key("functionName", self.functionName);
    };
};

/// One parameter of an external device.
struct ExternalDeviceParam final : JsonEntity<ExternalDeviceParam> {
    std::string paramsName;
    std::string paramsValue;
    std::string functionName;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("paramsName", self.paramsName);
        key("paramsValue", self.paramsValue);
        key("functionName", self.functionName);
    };
};

/// Resets several parameters of an external device.
struct ResetExternalDeviceParams final
    : JsonEntity<ResetExternalDeviceParams, ExternalDeviceKey, BaseKeys::OnlyRead> {
    std::vector<ExternalDeviceParam> paramList;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key.Write("deviceKey", self.deviceKey);
        key("paramList", self.paramList);
    };
};

/// The channel to switch to.
struct ChannelCommandParams final : JsonEntity<ChannelCommandParams> {
    std::string channelName;
    std::int32_t channelId = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("channelName", self.channelName);
        key("channelId", self.channelId);
    };
};

/// Switches the channel.
struct ChannelSwitchParams final : JsonEntity<ChannelSwitchParams> {
    ChannelCommandParams channelCommandParams;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("channelCommandParams", self.channelCommandParams);
    };
};

/// One channel and whether it is locked.
struct DeviceChannelParams final : JsonEntity<DeviceChannelParams> {
    std::string name;
    bool isLock = false;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("name", self.name);
        key("isLock", self.isLock);
    };
};

/// The device's channels and the current one.
struct DeviceChannelInfo final : JsonEntity<DeviceChannelInfo> {
    std::vector<DeviceChannelParams> deviceChannelParams;
    std::string onChannel;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("deviceChannelParams", self.deviceChannelParams);
        key("onChannel", self.onChannel);
    };
};

/// The wake server's record; its keys are capitalised.
struct WakeServerData final : JsonEntity<WakeServerData> {
    std::uint64_t Id = 0;
    std::string BindingCode;
    std::string Uid;
    std::string ServerName;
    std::string TimeSpan;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("Id", self.Id);
        key("BindingCode", self.BindingCode);
        key("Uid", self.Uid);
        key("ServerName", self.ServerName);
        key("TimeSpan", self.TimeSpan);
    };
};

/// State of the binding to a wake server.
struct WakeServerInfo final : JsonEntity<WakeServerInfo> {
    std::string wakeServerName;
    bool isOnLine = false;
    std::int32_t code = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("wakeServerName", self.wakeServerName);
        key("isOnLine", self.isOnLine);
        key("code", self.code);
    };
};

/// The wake server of a device, with the operation that bound it.
struct DeviceWakeServer final : JsonEntity<DeviceWakeServer> {
    std::int32_t operationDeviceLogId = 0;
    std::int32_t operationId = 0;
    WakeServerInfo wakeServerEntity;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("operationDeviceLogId", self.operationDeviceLogId);
        key("operationId", self.operationId);
        key("wakeServerEntity", self.wakeServerEntity);
    };
};

/// Asks for a wake packet to one machine.
struct SendWolParams final : JsonEntity<SendWolParams> {
    std::string mac;
    std::string ip;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("mac", self.mac);
        key("ip", self.ip);
    };
};

/// Several machines to wake, in one text.
struct DeviceWolParams final : JsonEntity<DeviceWolParams> {
    std::string macsAndIps;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("macsAndIps", self.macsAndIps); };
};
