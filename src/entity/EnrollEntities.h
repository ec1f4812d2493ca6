#pragma once

#include "entity/IotEntities.h"
#include "entity/RemoteEntities.h"
#include "entity/RyxEntity.h"

#include <cstdint>
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

    static constexpr auto Keys = [](auto& self, const auto& key) {
        // Written with the account first.
        key.Read("code", self.code);
        key("adminAccount", self.adminAccount);
        key.Write("code", self.code);
        key("needMigration", self.needMigration);
        key("tag", self.tag);
        key("name", self.name);
    };
};

/// The enrollment file found on a USB drive: a fixed device name, or one built from prefix and suffix.
struct UsbEnrollmentFile final : JsonEntity<UsbEnrollmentFile> {
    std::string code;
    std::string account;
    std::string deviceName;
    std::string devicePrefix;
    std::string deviceSuffix;
    std::vector<std::string> tags;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("code", self.code);
        key("account", self.account);
        key("deviceName", self.deviceName);
        key("devicePrefix", self.devicePrefix);
        key("deviceSuffix", self.deviceSuffix);
        key("tags", self.tags);
    };
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

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("code", self.code);
        key("email", self.email);
        key("type", self.type);
        key("isBind", self.isBind);
        key("os", self.os);
        key("appKey", self.appKey);
        key("plat", self.plat);
        key("product", self.product);
        key("sn", self.sn);
        key("version", self.version);
        key("hasAuto", self.hasAuto);
    };
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

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("code", self.code);
        key("email", self.email);
        key("binding", self.binding);
        key("deviceName", self.deviceName);
        key("sn", self.sn);
        key("hasAuto", self.hasAuto);
        key("tags", self.tags);
    };
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

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("code", self.code);
        key("email", self.email);
        key("operationDeviceLogId", self.operationDeviceLogId);
        key("operationId", self.operationId);
        key("binding", self.binding);
        key("name", self.name);
        key("tags", self.tags);
        key("wakeServerEntity", self.wakeServerEntity);
    };
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

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("binding", self.binding);
        key("result", self.result);
        key("code", self.code);
        key("deviceName", self.deviceName);
        key("schoolCode", self.schoolCode);
        key("email", self.email);
        key("permissionList", self.permissionList);
    };
};

/// The permissions that the organisation holds over the device.
struct PermissionInfo final : JsonEntity<PermissionInfo> {
    std::vector<std::string> keyList;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("keyList", self.keyList); };
};

/// Tells the administrator's e-mail address.
struct AdminAccountDataNotify final : JsonEntity<AdminAccountDataNotify, OperationCommandRequest> {
    std::string email;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("email", self.email); };
};

/// The device's identity; `version` is that of the software.
struct DeviceBaseInfo final : JsonEntity<DeviceBaseInfo> {
    std::string name;
    std::string timeZone;
    std::string ip;
    std::string version;
    std::string product;
    std::vector<std::string> tags;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("name", self.name);
        key("timeZone", self.timeZone);
        key("ip", self.ip);
        key("version", self.version);
        key("product", self.product);
        key("tags", self.tags);
    };
};

/// The device's name.
struct DeviceNameProperty final : JsonEntity<DeviceNameProperty, OperationCommandRequest> {
    std::string name;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("name", self.name); };
};

/// The device's tags.
struct DeviceTagsProperty final : JsonEntity<DeviceTagsProperty, OperationCommandRequest> {
    std::vector<std::string> tags;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("tags", self.tags); };
};

/// One network interface.
struct NICInfo final : JsonEntity<NICInfo> {
    std::string nicName;
    std::string mac;
    std::string publicIp;
    std::string privateIp;
    std::string nicType;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("nicName", self.nicName);
        key("mac", self.mac);
        key("publicIp", self.publicIp);
        key("privateIp", self.privateIp);
        key("nicType", self.nicType);
    };
};

/// The device's network interfaces.
struct NicInfoParamsList final : JsonEntity<NicInfoParamsList> {
    std::vector<NICInfo> nicInfoParamsList;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("nicInfoParamsList", self.nicInfoParamsList);
    };
};

/// The device's inventory: storage and memory (used and in total), screen size in pixels, whether wake-on-LAN
/// is enabled.
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

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("useStorage", self.useStorage);
        key("totalStorage", self.totalStorage);
        key("useRam", self.useRam);
        key("totalRam", self.totalRam);
        key("os", self.os);
        key("osVersion", self.osVersion);
        key("touchFrame", self.touchFrame);
        key("productType", self.productType);
        key("wolSwitch", self.wolSwitch);
        key("cpu", self.cpu);
        key("serialNumber", self.serialNumber);
        key("screenWidth", self.screenWidth);
        key("screenHeight", self.screenHeight);
        key("nicInfoParamsList", self.nicInfoParamsList);
        key("drives", self.drives);
    };
};

/// The sales channel of the device.
struct DeviceCustomerChannelInfo final : JsonEntity<DeviceCustomerChannelInfo> {
    std::string customerChannel;
    std::string os;
    std::string product;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("customerChannel", self.customerChannel);
        // A flag in disguise: the service sends true or false and is sent back a text of one byte, 1 or 0.
        key.Read("os", self.os, [](const Json::Value& value, std::string& field) {
            field.assign(1, value.asBool() ? '\1' : '\0');
        });
        key.Write("os", self.os);
        key("product", self.product);
    };
};

/// The resolved position in degrees, and the address it was found with.
/// A command by type only: its body holds nothing but its own keys.
struct DeviceLocationInfo final : JsonEntity<DeviceLocationInfo, OperationCommandRequest, BaseKeys::Neither> {
    double latitude = 0.0;
    double longitude = 0.0;
    std::string ip;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("latitude", self.latitude);
        key("longitude", self.longitude);
        key("ip", self.ip);
    };
};

/// One Wi-Fi access point in reach.
/// A command by type only: its body holds nothing but its own keys.
struct DeviceLocationWifiInfo final
    : JsonEntity<DeviceLocationWifiInfo, OperationCommandRequest, BaseKeys::Neither> {
    double signalStrength = 0.0;
    std::string macAddress;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("signalStrength", self.signalStrength);
        key("macAddress", self.macAddress);
    };
};

/// What a position is resolved from: the address and the access points in reach.
struct DeviceLocationParams final : JsonEntity<DeviceLocationParams> {
    std::string ip;
    bool status = false;
    std::vector<DeviceLocationWifiInfo> wifiAccessPoints;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("ip", self.ip);
        key("status", self.status);
        key("wifiAccessPoints", self.wifiAccessPoints);
    };
};

/// Resets the device; `type` is the service's code of how.
struct FactoryResetParams final : JsonEntity<FactoryResetParams, OperationCommandRequest> {
    std::int32_t type = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("type", self.type); };
};
