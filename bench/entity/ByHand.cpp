#include "ByHand.h"

#include <cstdio>
#include <memory>
#include <utility>

Json::Value ParseBare(const std::string& text) {
    static const Json::CharReaderBuilder builder;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value root;
    std::string errors;
    if (!reader->parse(text.data(), text.data() + text.size(), &root, &errors))
        std::fprintf(stderr, "%s\n", errors.c_str());
    return root;
}

void ReadByHand(const std::string& text, IotStatusEntity& status) {
    const Json::Value root = ParseBare(text);
    status.status = root["status"].asInt();
}

void ReadByHand(const std::string& text, SyncPopupsParams& policy) {
    const Json::Value root = ParseBare(text);
    policy.popStatus = root["popStatus"].asBool();
    policy.hasOne = root["hasOne"].asBool();
    policy.enable = root["enable"].asBool();
    for (const Json::Value& item : root["popupsDetails"]) {
        PopupsTypeParams& rule = policy.popupsDetails.emplace_back();
        rule.appName = item["appName"].asString();
        rule.popName = item["popName"].asString();
        rule.popClassName = item["popClassName"].asString();
        rule.popProductName = item["popProductName"].asString();
        rule.popSignName = item["popSignName"].asString();
        rule.popDirectory = item["popDirectory"].asString();
    }
}

void ReadByHand(const std::string& text, CertificateProperty& property) {
    const Json::Value root = ParseBare(text);
    property.operationId = root["operationId"].asInt();
    property.operationDeviceLogId = root["operationDeviceLogId"].asInt();
    for (const Json::Value& item : root["certInstallParamsList"]) {
        CertificateListEntity& certificate = property.certInstallParamsList.emplace_back();
        certificate.operationId = item["operationId"].asInt();
        certificate.operationDeviceLogId = item["operationDeviceLogId"].asInt();
        certificate.certId = item["certId"].asInt();
        certificate.type = item["type"].asInt();
        certificate.fileKey = item["fileKey"].asString();
        certificate.md5 = item["md5"].asString();
        certificate.certName = item["certName"].asString();
        certificate.password = item["password"].asString();
        certificate.fileName = item["fileName"].asString();
        certificate.commonName = item["commonName"].asString();
    }
}

void ReadByHand(const std::string& text, DevicePropertyInfo& info) {
    const Json::Value root = ParseBare(text);
    info.useStorage = root["useStorage"].asInt64();
    info.totalStorage = root["totalStorage"].asInt64();
    info.useRam = root["useRam"].asInt64();
    info.totalRam = root["totalRam"].asInt64();
    info.os = root["os"].asString();
    info.osVersion = root["osVersion"].asString();
    info.touchFrame = root["touchFrame"].asString();
    info.productType = root["productType"].asString();
    info.wolSwitch = root["wolSwitch"].asBool();
    info.cpu = root["cpu"].asString();
    info.serialNumber = root["serialNumber"].asString();
    info.screenWidth = root["screenWidth"].asInt();
    info.screenHeight = root["screenHeight"].asInt();
    for (const Json::Value& item : root["nicInfoParamsList"]["nicInfoParamsList"]) {
        NICInfo& nic = info.nicInfoParamsList.nicInfoParamsList.emplace_back();
        nic.nicName = item["nicName"].asString();
        nic.mac = item["mac"].asString();
        nic.publicIp = item["publicIp"].asString();
        nic.privateIp = item["privateIp"].asString();
        nic.nicType = item["nicType"].asString();
    }
    for (const Json::Value& drive : root["drives"])
        info.drives.push_back(drive.asString());
}

std::string WriteByHand(const IotStatusEntity& status) {
    Json::Value root;
    root["status"] = status.status;
    return root.toStyledString();
}

std::string WriteByHand(const SyncPopupsParams& policy) {
    Json::Value root;
    root["popStatus"] = policy.popStatus;
    root["hasOne"] = policy.hasOne;
    root["enable"] = policy.enable;
    Json::Value list;
    for (const PopupsTypeParams& rule : policy.popupsDetails) {
        Json::Value item;
        item["appName"] = rule.appName;
        item["popName"] = rule.popName;
        item["popClassName"] = rule.popClassName;
        item["popProductName"] = rule.popProductName;
        item["popSignName"] = rule.popSignName;
        item["popDirectory"] = rule.popDirectory;
        list.append(std::move(item));
    }
    root["popupsDetails"] = std::move(list);
    return root.toStyledString();
}

std::string WriteByHand(const CertificateProperty& property) {
    Json::Value root;
    root["operationId"] = property.operationId;
    root["operationDeviceLogId"] = property.operationDeviceLogId;
    Json::Value list;
    for (const CertificateListEntity& certificate : property.certInstallParamsList) {
        Json::Value item;
        item["operationId"] = certificate.operationId;
        item["operationDeviceLogId"] = certificate.operationDeviceLogId;
        item["certId"] = certificate.certId;
        item["fileKey"] = certificate.fileKey;
        item["md5"] = certificate.md5;
        item["certName"] = certificate.certName;
        item["password"] = certificate.password;
        item["type"] = certificate.type;
        item["fileName"] = certificate.fileName;
        item["commonName"] = certificate.commonName;
        list.append(std::move(item));
    }
    root["certificateEntityList"] = std::move(list);
    return root.toStyledString();
}

std::string WriteByHand(const DevicePropertyInfo& info) {
    Json::Value root;
    root["useStorage"] = Json::Int64(info.useStorage);
    root["totalStorage"] = Json::Int64(info.totalStorage);
    root["useRam"] = Json::Int64(info.useRam);
    root["totalRam"] = Json::Int64(info.totalRam);
    root["os"] = info.os;
    root["osVersion"] = info.osVersion;
    root["touchFrame"] = info.touchFrame;
    root["productType"] = info.productType;
    root["wolSwitch"] = info.wolSwitch;
    root["cpu"] = info.cpu;
    root["serialNumber"] = info.serialNumber;
    root["screenWidth"] = info.screenWidth;
    root["screenHeight"] = info.screenHeight;
    Json::Value nics;
    for (const NICInfo& nic : info.nicInfoParamsList.nicInfoParamsList) {
        Json::Value item;
        item["nicName"] = nic.nicName;
        item["mac"] = nic.mac;
        item["publicIp"] = nic.publicIp;
        item["privateIp"] = nic.privateIp;
        item["nicType"] = nic.nicType;
        nics.append(std::move(item));
    }
    root["nicInfoParamsList"]["nicInfoParamsList"] = std::move(nics);
    Json::Value drives;
    for (const std::string& drive : info.drives)
        drives.append(drive);
    root["drives"] = std::move(drives);
    return root.toStyledString();
}
