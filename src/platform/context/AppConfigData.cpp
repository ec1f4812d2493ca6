#include "platform/context/AppConfigData.h"

#include "entity/JsonText.h"
#include "platform/DeveloperBuild.h"
#include "platform/system/FileRights.h"
#include "platform/system/SystemSession.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <memory>

namespace {

constexpr qint64 MostBytes = 1024 * 1024;

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

std::string ChosenPath() {
    return IsDeveloperBuild ? qEnvironmentVariable("VELMORA_RYX_CONFIG").toStdString() : std::string();
}

} // namespace

AppConfigData* AppConfigData::Instance() {
    static const std::unique_ptr<AppConfigData> data = [] {
        auto loaded = std::make_unique<AppConfigData>();
        const std::string path = DefaultPath();
        const auto file = std::filesystem::u8path(path);
        // The folder first: from then on nobody else can put another file in this one's place.
        const FileRights folderRights = FileRights::Of(file.parent_path());
        loaded->loadNotes = loaded->Load(
            path, ChosenPath().empty() ? WhyNotTrusted(folderRights, FileRights::Of(file)) : std::string());
        return loaded;
    }();
    return data.get();
}

std::string AppConfigData::DefaultPath() {
    const std::string chosen = ChosenPath();
    return chosen.empty() ? SystemSession::Native().ConfigurationFolder().toStdString() + "/ryx.json"
                          : chosen;
}

std::string AppConfigData::WhyNotTrusted(const FileRights& folder, const FileRights& file) {
    const std::string why = folder.WhyNotTrusted();
    if (!why.empty())
        return "its folder " + why;
    const std::string whyNotFile = file.WhyNotTrusted();
    return whyNotFile.empty() ? whyNotFile : "it " + whyNotFile;
}

std::vector<std::string> AppConfigData::Load(const std::string& path, const std::string& whyNotTrusted) {
    const auto defaults = [&path](const std::string& why) {
        return std::vector<std::string>{"uses the defaults: " + path + ": " + why};
    };
    QFile file(QString::fromStdString(path));
    // Reading something else, such as a pipe that nobody writes to, could take for ever.
    if (const QFileInfo info(file); info.exists() && (!info.isFile() || info.size() > MostBytes))
        return defaults("it is no file of at most " + std::to_string(MostBytes) + " bytes");
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
            notes.push_back(std::string("ignores \"").append(key) + "\" in " + path + ": wrong type");
    };
    std::string ignored;
    const auto readTrusted = [&](const char* key, auto& field) {
        if (whyNotTrusted.empty())
            read(key, field);
        else if (!(*root)[key].isNull())
            ignored += (ignored.empty() ? "" : ", ") + std::string(key);
    };
    readTrusted("sentryDsn", sentryDsn);
    readTrusted("pipeName", pipeName);
    readTrusted("agentAccount", agentAccount);
    readTrusted("logFolder", logFolder);
    readTrusted("dataFolder", dataFolder);
    readTrusted("messageFileFolder", messageFileFolder);
    readTrusted("webServer", webServer);
    readTrusted("webProxy", webProxy);
    readTrusted("webCaFile", webCaFile);
    readTrusted("webHttpHosts", webHttpHosts);
    readTrusted("networkServers", networkServers);
    readTrusted("userAgreementUrl", userAgreementUrl);
    readTrusted("privacyPolicyUrl", privacyPolicyUrl);
    readTrusted("supportName", supportName);
    readTrusted("supportTelephone", supportTelephone);
    readTrusted("supportMail", supportMail);
    readTrusted("supportPage", supportPage);
    read("language", language);
    read("theme", theme);
    read("organisation", organisation);
    read("deviceName", deviceName);
    read("messageFileMegabytes", messageFileMegabytes);
    read("webSilenceSeconds", webSilenceSeconds);
    read("webCallSeconds", webCallSeconds);
    read("webTransferSeconds", webTransferSeconds);
    read("enrolled", enrolled);
    read("schoolCode", schoolCode);
    read("adminAccount", adminAccount);
    read("deviceTags", deviceTags);
    read("permissionList", permissionList);
    read("publisherSuffix", publisherSuffix);
    read("publisherSigners", publisherSigners);
    if (!ignored.empty())
        notes.push_back("ignores " + ignored + " in " + path + ": " + whyNotTrusted);
    return notes;
}
