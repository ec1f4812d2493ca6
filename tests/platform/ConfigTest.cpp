#include "platform/context/AppConfigData.h"
#include "platform/context/ProcessEnvironment.h"
#include "platform/system/FileRights.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <tuple>

namespace {

struct Loaded {
    AppConfigData data;
    std::vector<std::string> notes;
};

Loaded Load(const QByteArray& text, const std::string& whyNotTrusted = {}) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("ryx.json"));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    Loaded loaded;
    loaded.notes = loaded.data.Load(path.toStdString(), whyNotTrusted);
    return loaded;
}

} // namespace

TEST(Config, AdministratorsAloneSayWhomToTrust) {
    const FileRights own{true, false, true, "root", ""};
    const FileRights link{true, true, true, "root", ""};
    const FileRights foreign{true, false, false, "bob", ""};
    const FileRights open{true, false, true, "root", "users"};
    const std::tuple<FileRights, FileRights, const char*> cases[] = {
        {own, own, ""},
        {foreign, own, "its folder belongs to bob"},
        {open, own, "its folder may be changed by users"},
        {own, foreign, "it belongs to bob"},
        {own, link, "it is a link"},
        {own, {}, "it cannot be examined"}};
    for (const auto& [folder, file, reason] : cases) {
        const std::string why = AppConfigData::WhyNotTrusted(folder, file);
        EXPECT_EQ(why, reason);
        const auto [data, notes] = Load(R"({"language": "de", "theme": "dark", "organisation": "Schule Süd",
            "deviceName": "n", "enrolled": true, "webCallSeconds": 5, "schoolCode": "c", "adminAccount": "@",
            "deviceTags": ["t", "u"], "permissionList": ["v"], "publisherSuffix": "z", "publisherSigners": ["!"],
            "sentryDsn": "d", "pipeName": "p", "agentAccount": "a", "logFolder": "l", "dataFolder": "f",
            "messageFileFolder": "m", "webServer": "s", "webProxy": "y", "webCaFile": "e", "webHttpHosts": "h",
            "userAgreementUrl": "w", "privacyPolicyUrl": "x", "supportPage": "g", "networkServers": ["k"]})",
                                        why);
        EXPECT_EQ(data.language + data.theme + data.organisation + data.deviceName +
                      std::to_string(data.enrolled) + std::to_string(data.webCallSeconds) + data.schoolCode +
                      data.adminAccount + data.deviceTags.at(1) + data.permissionList.at(0) +
                      data.publisherSuffix + data.publisherSigners.at(0),
                  "dedarkSchule Südn15c@uvz!");
        EXPECT_EQ(data.sentryDsn + data.pipeName + data.agentAccount + data.logFolder + data.dataFolder +
                      data.messageFileFolder + data.webServer + data.webProxy + data.webCaFile +
                      data.webHttpHosts + data.userAgreementUrl + data.privacyPolicyUrl + data.supportPage +
                      std::to_string(data.networkServers.size()),
                  why.empty() ? "dpalfmsyehwxg1" : "0");
        ASSERT_EQ(notes.size(), why.empty() ? 0u : 1u);
        EXPECT_TRUE(why.empty() || QByteArray(notes[0].c_str()).contains(("ryx.json: " + why).c_str()));
    }
}

TEST(Config, WhatIsWrongIsSaidAndTheRestCounts) {
    const Loaded loaded = Load(R"({"language": 5, "enrolled": "yes", "theme": "dark", "pipeName": null,
        "deviceTags": ["a", 1], "permissionList": {}})");
    EXPECT_EQ(loaded.notes.size(), 4u);
    EXPECT_TRUE(loaded.data.deviceTags.empty());
    EXPECT_EQ(loaded.data.language, "");
    EXPECT_FALSE(loaded.data.enrolled);
    EXPECT_EQ(loaded.data.theme, "dark");

    for (const QByteArray& broken :
         {QByteArray("{\"theme\": "), QByteArray("[1]"), QByteArray(), QByteArray(100000, '[')})
        EXPECT_EQ(Load(broken).notes.size(), 1u) << broken.left(20).constData();
    AppConfigData data;
    EXPECT_EQ(data.Load("no/such/file.json").size(), 1u);
}

TEST(ProcessEnvironment, WhatSteersQtAndTheLogGoes) {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    for (const char* name : {"QT_PLUGIN_PATH", "GOOGLE_LOG_DIR", "qt_scale_factor", "QTDIR"})
        qputenv(name, "1");
    ProcessEnvironment::RemoveSteering();
    EXPECT_TRUE(qgetenv("QT_PLUGIN_PATH") + qgetenv("GOOGLE_LOG_DIR") + qgetenv("qt_scale_factor") == "");
    EXPECT_EQ(qgetenv("QTDIR"), "1");
    qputenv("QT_QPA_PLATFORM", platform);
}
