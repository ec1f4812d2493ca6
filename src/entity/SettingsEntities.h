#pragma once

#include "entity/RyxEntity.h"

#include <cstdint>
#include <string>
#include <vector>

// The areas of the settings profile that the administrator pushes.

/// Switches the settings lock on (non-zero) or off.
struct SettingsParams final : JsonEntity<SettingsParams, OperationCommandRequest> {
    std::int32_t enableSettingsLock = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("enableSettingsLock", self.enableSettingsLock);
    };
};

/// A notice about one setting area, named by its `type` code.
struct DeviceSettingNotify final : JsonEntity<DeviceSettingNotify, OperationCommandRequest> {
    std::int32_t type = 0;
    bool status = false;
    std::string content;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("type", self.type);
        key("status", self.status);
        key("content", self.content);
    };
};

/// When the screen goes to sleep.
struct AutoSleepProperty final : JsonEntity<AutoSleepProperty, OperationCommandRequest> {
    std::int32_t autoSleepTime = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("autoSleepTime", self.autoSleepTime);
    };
};

/// When the device goes to sleep.
struct AutoPowerSleepProperty final : JsonEntity<AutoPowerSleepProperty, OperationCommandRequest> {
    std::int32_t autoPowerSleepTime = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("autoPowerSleepTime", self.autoPowerSleepTime);
    };
};

/// One level, 100 until the service tells another.
struct LevelProperty : JsonEntity<LevelProperty, OperationCommandRequest> {
    std::int32_t value = 100;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("value", self.value); };
};

/// Speaker volume.
struct VolumeProperty final : LevelProperty {};

/// Screen brightness.
struct BrightnessProperty final : LevelProperty {};

/// One mode, -1 until the service tells another.
struct ModeProperty : JsonEntity<ModeProperty, OperationCommandRequest> {
    std::int32_t mode = -1;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("mode", self.mode); };
};

/// The clock's hour format.
struct HourFormatSettingProperty final : ModeProperty {};

/// How date and time are set.
struct DateAndTimeSettingProperty final : ModeProperty {};

/// Whether the power button locks the screen.
struct LockByButtonProperty final : JsonEntity<LockByButtonProperty, OperationCommandRequest> {
    std::int32_t turnOn = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        // The service sends a number and is answered with a flag.
        key.Read("turnOn", self.turnOn);
        key.Write("turnOn", self.turnOn != 0);
    };
};

/// The energy-saving schedule: the period, the minutes of idleness, and the action to take after them.
struct SavingModeProperty final : JsonEntity<SavingModeProperty, OperationCommandRequest> {
    std::int32_t savingModeStatus = 0;
    std::string startAt;
    std::string endAt;
    std::int32_t afterMinutes = 0;
    std::int32_t action = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("savingModeStatus", self.savingModeStatus);
        key("startAt", self.startAt);
        key("endAt", self.endAt);
        key("afterMinutes", self.afterMinutes);
        key("action", self.action);
    };
};

/// The time zone.
struct TimeZoneProperty final : JsonEntity<TimeZoneProperty, OperationCommandRequest> {
    std::string zoneId;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("zoneId", self.zoneId); };
};

/// The wake-on-LAN server switch, and whether it changed.
struct WolServerProperty final : JsonEntity<WolServerProperty, OperationCommandRequest> {
    bool change = false;
    bool enableWolServer = false;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("change", self.change);
        key("enableWolServer", self.enableWolServer);
    };
};

/// The Wi-Fi switch and the names of the networks allowed.
struct WifiProperty final : JsonEntity<WifiProperty, OperationCommandRequest> {
    bool enable = false;
    std::vector<std::string> wifiSsidList;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("enable", self.enable);
        key("wifiSsidList", self.wifiSsidList);
    };
};

/// One certificate: its file in the service's file store and the container's password.
struct CertificateListEntity final : JsonEntity<CertificateListEntity, OperationCommandRequest> {
    std::int32_t certId = 0;
    std::int32_t type = 0;
    std::string fileKey;
    std::string md5;
    std::string certName;
    std::string password;
    std::string fileName;
    std::string commonName;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("certId", self.certId);
        // The type is written right after the password.
        key.Read("type", self.type);
        key("fileKey", self.fileKey);
        key("md5", self.md5);
        key("certName", self.certName);
        key("password", self.password);
        key.Write("type", self.type);
        key("fileName", self.fileName);
        key("commonName", self.commonName);
    };
};

/// One Wi-Fi network to configure, with its enterprise authentication.
struct WifiInfoParams final : JsonEntity<WifiInfoParams, OperationCommandRequest> {
    std::string ssidName;
    std::string password;
    std::int32_t eapMethod = 0;
    std::int32_t phase2Method = 0;
    std::string identity;
    std::int32_t securityType = 0;
    std::string anonymousIdentity;
    bool autoConnect = false;
    bool connectEvenNotBroadcasting = false;
    CertificateListEntity caCert;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("ssidName", self.ssidName);
        key("password", self.password);
        // The security type is written right after the password.
        key.Write("securityType", self.securityType);
        key("eapMethod", self.eapMethod);
        key("phase2Method", self.phase2Method);
        key("identity", self.identity);
        key.Read("securityType", self.securityType);
        key("anonymousIdentity", self.anonymousIdentity);
        key("autoConnect", self.autoConnect);
        key("connectEvenNotBroadcasting", self.connectEvenNotBroadcasting);
        key("caCert", self.caCert);
    };
};

/// One network of the allow list.
/// A command by type only: its body holds nothing but its own keys.
struct WifiAllowListEntity final
    : JsonEntity<WifiAllowListEntity, OperationCommandRequest, BaseKeys::Neither> {
    std::string ssidname;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("ssidname", self.ssidname); };
};

/// The current Wi-Fi network.
struct WifiStatus final : JsonEntity<WifiStatus> {
    std::string wifiName;
    bool connectStatus = false;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("wifiName", self.wifiName);
        // Two names for one flag, so that a status written and read back loses it.
        key.Read("connectStatus", self.connectStatus);
        key.Write("wifiOnlineStatus", self.connectStatus);
    };
};

/// Certificates to install.
struct CertificateProperty final : JsonEntity<CertificateProperty, OperationCommandRequest> {
    std::vector<CertificateListEntity> certInstallParamsList;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        // The service orders installs under their own name and takes both kinds back under one.
        key.Read("certInstallParamsList", self.certInstallParamsList);
        key.Write("certificateEntityList", self.certInstallParamsList);
    };
};

/// Certificates to remove.
struct CertificateUnInstallProperty final
    : JsonEntity<CertificateUnInstallProperty, OperationCommandRequest> {
    std::vector<CertificateListEntity> certUninstallParamsList;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        // The service orders removals under their own name and takes both kinds back under one.
        key.Read("certUninstallParamsList", self.certUninstallParamsList);
        key.Write("certificateEntityList", self.certUninstallParamsList);
    };
};

/// One blocked address.
struct BlockListEntity final : JsonEntity<BlockListEntity> {
    std::string url;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("url", self.url); };
};

/// The addresses that the device must not open.
struct BlockListProperty final : JsonEntity<BlockListProperty, OperationCommandRequest> {
    std::int32_t blockType = 0;
    std::vector<BlockListEntity> blocklistEntityList;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("blockType", self.blockType);
        key("blocklistEntityList", self.blocklistEntityList);
    };
};

/// Locks the screen until `endAt`.
struct DeviceScreenLock final : JsonEntity<DeviceScreenLock> {
    std::string endAt;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("endAt", self.endAt); };
};

/// Switches a recurring schedule on or off.
struct SwitchRecurringRequest final : JsonEntity<SwitchRecurringRequest, OperationCommandRequest> {
    bool status = false;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("status", self.status); };
};
