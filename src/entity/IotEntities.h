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

    RYX_KEYS(code, result);
};

/// How to reach the service's message broker.
struct IotEnvironment final : JsonEntity<IotEnvironment> {
    std::string registerUrl;
    std::string brokerUrl;
    std::string productKey;
    std::string productSecret;

    RYX_KEYS(registerUrl, brokerUrl, productKey, productSecret);
};

/// State of the link to the message broker.
struct IotStatusEntity final : JsonEntity<IotStatusEntity> {
    std::int32_t status = 0;

    RYX_KEYS(status);
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

    RYX_KEYS(success, code, message, data, traceId, deviceId, method);
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

    RYX_KEYS(name, tags, blocklist, deleteBlocklist, profileSwitch, autoSleep, autoPowerSleep, wolServer,
             hourFormatSetting, dateAndTimeSetting, timeZone, wifiSettings, profileCertList, wifiAllowList,
             offlineTasks, profileUninstallCertList, settingsLock, brightness, lockByButton, savingMode,
             volume);
};
