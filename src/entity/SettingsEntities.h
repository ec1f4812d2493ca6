#pragma once

#include "entity/RyxEntity.h"

#include <cstdint>
#include <string>
#include <vector>

// The areas of the settings profile that the administrator pushes.

/// Switches the settings lock on (non-zero) or off.
struct SettingsParams final : JsonEntity<SettingsParams, OperationCommandRequest> {
    std::int32_t enableSettingsLock = 0;

    RYX_KEYS(enableSettingsLock);
};

/// A notice about one setting area, named by its `type` code.
struct DeviceSettingNotify final : JsonEntity<DeviceSettingNotify, OperationCommandRequest> {
    std::int32_t type = 0;
    bool status = false;
    std::string content;

    RYX_KEYS(type, status, content);
};

/// The sleep time.
struct AutoSleepProperty final : JsonEntity<AutoSleepProperty, OperationCommandRequest> {
    std::int32_t autoSleepTime = 0;

    RYX_KEYS(autoSleepTime);
};

/// The power-sleep time.
struct AutoPowerSleepProperty final : JsonEntity<AutoPowerSleepProperty, OperationCommandRequest> {
    std::int32_t autoPowerSleepTime = 0;

    RYX_KEYS(autoPowerSleepTime);
};

/// One level, 100 until the service tells another.
struct LevelProperty : JsonEntity<LevelProperty, OperationCommandRequest> {
    std::int32_t value = 100;

    RYX_KEYS(value);
};

/// Speaker volume.
struct VolumeProperty final : LevelProperty {};

/// Screen brightness.
struct BrightnessProperty final : LevelProperty {};

/// The clock's hour format: 0 for 12 hours, anything else for 24.
struct HourFormatSettingProperty final : JsonEntity<HourFormatSettingProperty, OperationCommandRequest> {
    std::int32_t hourFormatSetting = -1;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        // Two names are in use; where both are there, the second counts. Naming neither must not read as 0.
        key.Read("mode", self.hourFormatSetting, [](const Json::Value& value, std::int32_t& field) {
            field = value.isNull() ? -1 : value.asInt();
        });
        key.Read("hourFormatSetting", self.hourFormatSetting,
                 [](const Json::Value& value, std::int32_t& field) {
                     if (!value.isNull())
                         field = value.asInt();
                 });
        key.Write("hourFormatSetting", self.hourFormatSetting);
    };
};

/// The date and time setting, -1 until the service tells another.
struct DateAndTimeSettingProperty final : JsonEntity<DateAndTimeSettingProperty, OperationCommandRequest> {
    std::int32_t mode = -1;

    RYX_KEYS(mode);
};

/// The power button's lock.
struct LockByButtonProperty final : JsonEntity<LockByButtonProperty, OperationCommandRequest> {
    std::int32_t turnOn = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        // Read as a number, written as a flag.
        key.Read("turnOn", self.turnOn);
        key.Write("turnOn", self.turnOn != 0);
    };
};

/// The energy-saving schedule: its period, the minutes of idleness, and the action to take.
struct SavingModeProperty final : JsonEntity<SavingModeProperty, OperationCommandRequest> {
    std::int32_t savingModeStatus = 0;
    std::string startAt;
    std::string endAt;
    std::int32_t afterMinutes = 0;
    std::int32_t action = 0;

    RYX_KEYS(savingModeStatus, startAt, endAt, afterMinutes, action);
};

/// The time zone.
struct TimeZoneProperty final : JsonEntity<TimeZoneProperty, OperationCommandRequest> {
    std::string zoneId;

    RYX_KEYS(zoneId);
};

/// The wake-on-LAN server switch, and whether it changed.
struct WolServerProperty final : JsonEntity<WolServerProperty, OperationCommandRequest> {
    bool change = false;
    bool enableWolServer = false;

    RYX_KEYS(change, enableWolServer);
};

/// The Wi-Fi switch and the names of the networks allowed.
struct WifiProperty final : JsonEntity<WifiProperty, OperationCommandRequest> {
    bool enable = false;
    std::vector<std::string> wifiSsidList;

    RYX_KEYS(enable, wifiSsidList);
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

    RYX_KEYS(certId, type, fileKey, md5, certName, password, fileName, commonName);
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

    RYX_KEYS(ssidName, password, eapMethod, phase2Method, identity, securityType, anonymousIdentity,
             autoConnect, connectEvenNotBroadcasting, caCert);
};

/// One network of the allow list.
/// A command by type only: its body holds nothing but its own keys.
struct WifiAllowListEntity final
    : JsonEntity<WifiAllowListEntity, OperationCommandRequest, BaseKeys::LeftOut> {
    std::string ssidname;

    RYX_KEYS(ssidname);
};

/// The current Wi-Fi network.
struct WifiStatus final : JsonEntity<WifiStatus> {
    std::string wifiName;
    bool connectStatus = false;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        RYX_KEY(wifiName);
        // Two names for one flag, so that a status written and read back loses it.
        key.Read("connectStatus", self.connectStatus);
        key.Write("wifiOnlineStatus", self.connectStatus);
    };
};

/// Certificates to install.
struct CertificateProperty final : JsonEntity<CertificateProperty, OperationCommandRequest> {
    std::vector<CertificateListEntity> certInstallParamsList;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        // Both lists of certificates are written under one name.
        key.Read("certInstallParamsList", self.certInstallParamsList);
        key.Write("certificateEntityList", self.certInstallParamsList);
    };
};

/// Certificates to remove.
struct CertificateUnInstallProperty final
    : JsonEntity<CertificateUnInstallProperty, OperationCommandRequest> {
    std::vector<CertificateListEntity> certUninstallParamsList;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        // Both lists of certificates are written under one name.
        key.Read("certUninstallParamsList", self.certUninstallParamsList);
        key.Write("certificateEntityList", self.certUninstallParamsList);
    };
};

/// One blocked address.
struct BlockListEntity final : JsonEntity<BlockListEntity> {
    std::string url;

    RYX_KEYS(url);
};

/// The block list of addresses.
struct BlockListProperty final : JsonEntity<BlockListProperty, OperationCommandRequest> {
    std::int32_t blockType = 0;
    std::vector<BlockListEntity> blocklistEntityList;

    RYX_KEYS(blockType, blocklistEntityList);
};

/// Locks the screen until `endAt`.
struct DeviceScreenLock final : JsonEntity<DeviceScreenLock> {
    std::string endAt;

    RYX_KEYS(endAt);
};

/// Switches a recurring schedule on or off.
struct SwitchRecurringRequest final : JsonEntity<SwitchRecurringRequest, OperationCommandRequest> {
    bool status = false;

    RYX_KEYS(status);
};
