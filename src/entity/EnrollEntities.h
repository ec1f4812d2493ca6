#pragma once

#include "entity/IotEntities.h"
#include "entity/RemoteEntities.h"
#include "entity/RyxEntity.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// Enrollment, identity and inventory of the device.

/// Parameters of an automatic enrollment.
struct AutoEnrollParams final : JsonEntity<AutoEnrollParams> {
    std::string code;
    std::string adminAccount;
    bool needMigration = false;
    std::string tag;
    std::string name;

    RYX_KEYS(code, adminAccount, needMigration, tag, name);
};

/// The enrollment file found on a USB drive: a fixed device name, or one built from prefix and suffix.
struct UsbEnrollmentFile final : JsonEntity<UsbEnrollmentFile> {
    std::string code;
    std::string account;
    std::string deviceName;
    std::string devicePrefix;
    std::string deviceSuffix;
    std::vector<std::string> tags;

    RYX_KEYS(code, account, deviceName, devicePrefix, deviceSuffix, tags);
};

/// Asks the service to authorise the device; `sn` is its serial number.
struct DeviceAuthDataRequest final : JsonEntity<DeviceAuthDataRequest> {
    std::string code;
    std::string email;
    std::int32_t type = 0;
    bool isBind = false;
    std::string os;
    std::string appKey;
    std::string plat;
    std::string product;
    std::string sn;
    std::string version;
    bool hasAuto = false;

    RYX_KEYS(code, email, type, isBind, os, appKey, plat, product, sn, version, hasAuto);
};

/// First stage of a binding: what the user entered.
struct DeviceBindingParam final : JsonEntity<DeviceBindingParam> {
    std::string code;
    std::string email;
    bool binding = false;
    std::string deviceName;
    std::string sn;
    bool hasAuto = false;
    std::vector<std::string> tags;

    RYX_KEYS(code, email, binding, deviceName, sn, hasAuto, tags);
};

/// Second stage of a binding: what the service echoes while it binds.
struct DeviceBindingInfo final : JsonEntity<DeviceBindingInfo> {
    std::string code;
    std::string email;
    std::int32_t operationDeviceLogId = 0;
    std::int32_t operationId = 0;
    bool binding = false;
    std::string name;
    std::vector<std::string> tags;
    WakeServerInfo wakeServerEntity;

    RYX_KEYS(code, email, operationDeviceLogId, operationId, binding, name, tags, wakeServerEntity);
};

/// Last stage of a binding: its outcome and the permissions granted.
struct DeviceBindingResult final : JsonEntity<DeviceBindingResult> {
    bool binding = false;
    bool result = false;
    std::string code;
    std::string deviceName;
    std::string schoolCode;
    std::string email;
    std::vector<std::string> permissionList;

    RYX_KEYS(binding, result, code, deviceName, schoolCode, email, permissionList);
};

/// What a result or a notice says of an unenrolment.
struct UnenrolmentResult final : JsonEntity<UnenrolmentResult> {
    std::optional<bool> result;
    std::string code; ///< why it failed

    RYX_KEYS(result, code);
};

/// The permissions that the organisation holds over the device.
struct PermissionInfo final : JsonEntity<PermissionInfo> {
    std::vector<std::string> keyList;

    RYX_KEYS(keyList);
};

/// Tells the administrator's e-mail address.
struct AdminAccountDataNotify final : JsonEntity<AdminAccountDataNotify, OperationCommandRequest> {
    std::string email;

    RYX_KEYS(email);
};

/// The device's identity; `version` is that of the software.
struct DeviceBaseInfo final : JsonEntity<DeviceBaseInfo> {
    std::string name;
    std::string timeZone;
    std::string ip;
    std::string version;
    std::string product;
    std::vector<std::string> tags;

    RYX_KEYS(name, timeZone, ip, version, product, tags);
};

/// The device's name.
struct DeviceNameProperty final : JsonEntity<DeviceNameProperty, OperationCommandRequest> {
    std::string name;

    RYX_KEYS(name);
};

/// The device's tags.
struct DeviceTagsProperty final : JsonEntity<DeviceTagsProperty, OperationCommandRequest> {
    std::vector<std::string> tags;

    RYX_KEYS(tags);
};

/// One network interface.
struct NICInfo final : JsonEntity<NICInfo> {
    std::string nicName;
    std::string mac;
    std::string publicIp;
    std::string privateIp;
    std::string nicType;

    RYX_KEYS(nicName, mac, publicIp, privateIp, nicType);
};

/// The device's network interfaces.
struct NicInfoParamsList final : JsonEntity<NicInfoParamsList> {
    std::vector<NICInfo> nicInfoParamsList;

    RYX_KEYS(nicInfoParamsList);
};

/// The device's inventory: storage and memory (used and in total), screen size, whether wake-on-LAN is
/// enabled.
struct DevicePropertyInfo final : JsonEntity<DevicePropertyInfo> {
    std::int64_t useStorage = 0;
    std::int64_t totalStorage = 0;
    std::int64_t useRam = 0;
    std::int64_t totalRam = 0;
    std::string os;
    std::string osVersion;
    std::string touchFrame;
    std::string productType;
    bool wolSwitch = false;
    std::string cpu;
    std::string serialNumber;
    std::int32_t screenWidth = 0;
    std::int32_t screenHeight = 0;
    NicInfoParamsList nicInfoParamsList;
    std::vector<std::string> drives;

    RYX_KEYS(useStorage, totalStorage, useRam, totalRam, os, osVersion, touchFrame, productType, wolSwitch,
             cpu, serialNumber, screenWidth, screenHeight, nicInfoParamsList, drives);
};

/// The customer channel of the device.
struct DeviceCustomerChannelInfo final : JsonEntity<DeviceCustomerChannelInfo> {
    std::string customerChannel;
    std::string os;
    std::string product;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        RYX_KEY(customerChannel);
        // Read as a flag, held and written as a text of one byte, 1 or 0.
        key.Read("os", self.os, [](const Json::Value& value, std::string& field) {
            field.assign(1, value.asBool() ? '\1' : '\0');
        });
        key.Write("os", self.os);
        RYX_KEY(product);
    };
};

/// The resolved position, and the address used.
/// A command by type only: its body holds nothing but its own keys.
struct DeviceLocationInfo final : JsonEntity<DeviceLocationInfo, OperationCommandRequest, BaseKeys::LeftOut> {
    double latitude = 0.0;
    double longitude = 0.0;
    std::string ip;

    RYX_KEYS(latitude, longitude, ip);
};

/// One Wi-Fi access point.
/// A command by type only: its body holds nothing but its own keys.
struct DeviceLocationWifiInfo final
    : JsonEntity<DeviceLocationWifiInfo, OperationCommandRequest, BaseKeys::LeftOut> {
    double signalStrength = 0.0;
    std::string macAddress;

    RYX_KEYS(signalStrength, macAddress);
};

/// The device's address, a status and the Wi-Fi access points, for its location.
struct DeviceLocationParams final : JsonEntity<DeviceLocationParams> {
    std::string ip;
    bool status = false;
    std::vector<DeviceLocationWifiInfo> wifiAccessPoints;

    RYX_KEYS(ip, status, wifiAccessPoints);
};

/// Resets the device; `type` is the service's code of how.
struct FactoryResetParams final : JsonEntity<FactoryResetParams, OperationCommandRequest> {
    std::int32_t type = 0;

    RYX_KEYS(type);
};
