#include "platform/context/AppConfigData.h"

#include "entity/JsonText.h"
#include "platform/system/SystemSession.h"

#include <QFile>
#include <algorithm>
#include <memory>

namespace {

template <class Value>
bool Read(const Json::Value& value, Value& field) {
    if (!value.is<Value>())
        return false;
    field = value.as<Value>();
    return true;
}

bool Read(const Json::Value& value, std::vector<std::string>& field) {
    if (!value.isArray() ||
        !std::all_of(value.begin(), value.end(), [](const Json::Value& item) { return item.isString(); }))
        return false;
    field.clear();
    for (const Json::Value& item : value)
        field.push_back(item.asString());
    return true;
}

} // namespace

AppConfigData* AppConfigData::Instance() {
    static const std::unique_ptr<AppConfigData> data = [] {
        auto loaded = std::make_unique<AppConfigData>();
        loaded->loadNotes = loaded->Load(DefaultPath());
        return loaded;
    }();
    return data.get();
}

std::string AppConfigData::DefaultPath() {
    const QString chosen = qEnvironmentVariable("VELMORA_RYX_CONFIG");
    const QString path = chosen.isEmpty()
                             ? SystemSession::Native().ConfigurationFolder() + QStringLiteral("/ryx.json")
                             : chosen;
    return path.toStdString();
}

std::vector<std::string> AppConfigData::Load(const std::string& path) {
    const auto defaults = [&path](const std::string& why) {
        return std::vector<std::string>{"uses the defaults: " + path + ": " + why};
    };
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        return defaults(file.errorString().toStdString());
    const std::string text = file.readAll().toStdString();
    std::string why;
    const auto root = ParseJsonObject(text, &why);
    if (!root)
        return defaults(why);

    std::vector<std::string> notes;
    const auto read = [&](const char* key, auto& field) {
        const Json::Value& value = (*root)[key];
        if (!value.isNull() && !Read(value, field))
            notes.push_back("ignores \"" + std::string(key) + "\" in " + path + ": wrong type");
    };
    read("sentryDsn", sentryDsn);
    read("language", language);
    read("theme", theme);
    read("pipeName", pipeName);
    read("agentAccount", agentAccount);
    read("logFolder", logFolder);
    read("dataFolder", dataFolder);
    read("organisation", organisation);
    read("deviceName", deviceName);
    read("webServer", webServer);
    read("webProxy", webProxy);
    read("webCaFile", webCaFile);
    read("webHttpHosts", webHttpHosts);
    read("messageFileFolder", messageFileFolder);
    read("messageFileMegabytes", messageFileMegabytes);
    read("webSilenceSeconds", webSilenceSeconds);
    read("webCallSeconds", webCallSeconds);
    read("webTransferSeconds", webTransferSeconds);
    read("enrolled", enrolled);
    read("schoolCode", schoolCode);
    read("adminAccount", adminAccount);
    read("deviceTags", deviceTags);
    read("permissionList", permissionList);
    read("userAgreementUrl", userAgreementUrl);
    read("privacyPolicyUrl", privacyPolicyUrl);
    read("networkServers", networkServers);
    read("supportName", supportName);
    read("supportTelephone", supportTelephone);
    read("supportMail", supportMail);
    read("supportPage", supportPage);
    read("publisherSuffix", publisherSuffix);
    read("publisherSigners", publisherSigners);
    return notes;
}
