#include "platform/context/AppConfigData.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct Loaded {
    AppConfigData data;
    std::vector<std::string> notes;
};

Loaded Load(const QByteArray& text) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("ryx.json"));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    Loaded loaded;
    loaded.notes = loaded.data.Load(path.toStdString());
    return loaded;
}

} // namespace

TEST(Config, EveryValueIsRead) {
    const Loaded loaded = Load(R"({"sentryDsn": "d", "language": "de", "theme": "dark", "pipeName": "p",
        "agentAccount": "a", "logFolder": "l", "organisation": "Schule Süd", "deviceName": "n", "enrolled": true,
        "webServer": "s", "webProxy": "y", "webCaFile": "c", "webHttpHosts": "h", "webCallSeconds": 5,
        "schoolCode": "c", "adminAccount": "@", "deviceTags": ["t", "u"], "permissionList": ["v"],
        "userAgreementUrl": "w", "privacyPolicyUrl": "x", "publisherSuffix": "z", "publisherSigners": ["!"]})");
    EXPECT_TRUE(loaded.notes.empty());
    const AppConfigData& data = loaded.data;
    EXPECT_EQ(data.sentryDsn + data.language + data.theme + data.pipeName + data.agentAccount +
                  data.logFolder + data.organisation + data.deviceName + data.webServer + data.webProxy +
                  data.webCaFile + data.webHttpHosts + data.schoolCode + data.adminAccount +
                  data.deviceTags.at(1) + data.permissionList.at(0) + data.userAgreementUrl +
                  data.privacyPolicyUrl + data.publisherSuffix + data.publisherSigners.at(0),
              "ddedarkpalSchule Südnsychc@uvwxz!");
    EXPECT_EQ(data.webCallSeconds, 5);
    EXPECT_TRUE(data.enrolled);
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
