#include "BenchBodies.h"

namespace {

std::string Numbered(const char* text, int number) {
    return text + std::to_string(number);
}

} // namespace

IotStatusEntity BrokerStatus() {
    IotStatusEntity status;
    status.status = 3;
    return status;
}

SyncPopupsParams PopupRules() {
    SyncPopupsParams policy;
    policy.popStatus = true;
    policy.hasOne = true;
    policy.enable = true;
    for (int i = 0; i < 1000; ++i) {
        PopupsTypeParams rule;
        rule.appName = Numbered("Application ", i);
        rule.popName = Numbered("Offer of the day, number ", i);
        rule.popClassName = "Chrome_WidgetWin_1";
        rule.popProductName = Numbered("Product ", i % 50);
        rule.popSignName = "Example Software Ltd.";
        rule.popDirectory = Numbered("C:/Program Files/Example/Application ", i);
        policy.popupsDetails.push_back(rule);
    }
    return policy;
}

CertificateProperty Certificates() {
    CertificateProperty property;
    for (int i = 0; i < 50; ++i) {
        CertificateListEntity certificate;
        certificate.certId = i;
        certificate.type = 1;
        certificate.fileKey = Numbered("certificates/campus/", i);
        certificate.md5 = "9e107d9d372bb6826bd81d3542a419d6";
        certificate.certName = Numbered("Campus network ", i);
        certificate.password = "secret";
        certificate.fileName = Numbered("campus", i) + ".pfx";
        certificate.commonName = "radius.example.org";
        property.certInstallParamsList.push_back(certificate);
    }
    return property;
}

std::string ReceivedCertificates() {
    const std::string written = "certificateEntityList";
    std::string text = Certificates().WriteToString();
    return text.replace(text.find(written), written.size(), "certInstallParamsList");
}

DevicePropertyInfo Inventory() {
    DevicePropertyInfo info;
    info.useStorage = 201863462912;
    info.totalStorage = 512110190592;
    info.useRam = 6442450944;
    info.totalRam = 17179869184;
    info.os = "Windows 11 Pro";
    info.osVersion = "10.0.22631";
    info.touchFrame = "IR frame, 40 points";
    info.productType = "Interactive display 86";
    info.cpu = "8 cores at 3.60 GHz";
    info.serialNumber = "SN-0123456789";
    info.screenWidth = 3840;
    info.screenHeight = 2160;
    for (int i = 0; i < 4; ++i) {
        NICInfo nic;
        nic.nicName = Numbered("Ethernet adapter ", i);
        nic.mac = Numbered("02:00:00:00:00:0", i);
        nic.publicIp = "203.0.113.7";
        nic.privateIp = Numbered("192.168.1.1", i);
        nic.nicType = "ethernet";
        info.nicInfoParamsList.nicInfoParamsList.push_back(nic);
    }
    info.drives = {"C:", "D:", "E:"};
    return info;
}
