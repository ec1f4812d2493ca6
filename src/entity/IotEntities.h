#pragma once

#include "entity/RyxEntity.h"

#include <cstdint>
#include <string>
#include <vector>

// The device's link to the service's message broker.

/// A generic error reply.
struct ErrorInfo final : JsonEntity<ErrorInfo> {
    std::string code;
    std::string result;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("code", self.code);
        key("result", self.result);
    };
};

/// How to reach the service's message broker.
struct IotEnvironment final : JsonEntity<IotEnvironment> {
    std::string registerUrl;
    std::string brokerUrl;
    std::string productKey;
    std::string productSecret;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("registerUrl", self.registerUrl);
        key("brokerUrl", self.brokerUrl);
        key("productKey", self.productKey);
        key("productSecret", self.productSecret);
    };
};

/// State of the link to the message broker.
struct IotStatusEntity final : JsonEntity<IotStatusEntity> {
    std::int32_t status = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("status", self.status); };
};

/// The broker's reply; `data` is JSON text.
struct IotResult final : JsonEntity<IotResult> {
    bool success = false;
    std::string code;
    std::string message;
    std::string data;
    std::string traceId;
    std::string deviceId;
    std::string method;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("success", self.success);
        key("code", self.code);
        key("message", self.message);
        key("data", self.data);
        key("traceId", self.traceId);
        key("deviceId", self.deviceId);
        key("method", self.method);
    };
};

/// The device's reported profile: each key holds the JSON text of one settings area.
struct IotProperty final : JsonEntity<IotProperty> {
    std::string name;
    std::string tags;
    std::string blocklist;
    std::string deleteBlocklist;
    std::string profileSwitch;
    std::string autoSleep;
    std::string autoPowerSleep;
    std::string wolServer;
    std::string hourFormatSetting;
    std::string dateAndTimeSetting;
    std::string timeZone;
    std::string wifiSettings;
    std::string profileCertList;
    std::string wifiAllowList;
    std::string offlineTasks;
    std::string profileUninstallCertList;
    std::string settingsLock;
    std::string brightness;
    std::string lockByButton;
    std::string savingMode;
    std::string volume;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("name", self.name);
        key("tags", self.tags);
        key("blocklist", self.blocklist);
        key("deleteBlocklist", self.deleteBlocklist);
        key("profileSwitch", self.profileSwitch);
        key("autoSleep", self.autoSleep);
        key("autoPowerSleep", self.autoPowerSleep);
        key("wolServer", self.wolServer);
        key("hourFormatSetting", self.hourFormatSetting);
        key("dateAndTimeSetting", self.dateAndTimeSetting);
        key("timeZone", self.timeZone);
        key("wifiSettings", self.wifiSettings);
        key("profileCertList", self.profileCertList);
        key("wifiAllowList", self.wifiAllowList);
        key("offlineTasks", self.offlineTasks);
        key("profileUninstallCertList", self.profileUninstallCertList);
        key("settingsLock", self.settingsLock);
        key("brightness", self.brightness);
        key("lockByButton", self.lockByButton);
        key("savingMode", self.savingMode);
        key("volume", self.volume);
    };
};
