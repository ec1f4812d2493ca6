#include "platform/context/AppConfigData.h"

#include "platform/system/SystemSession.h"

#include <QDir>
#include <QFile>
#include <glog/logging.h>
#include <json/json.h>
#include <memory>

AppConfigData* AppConfigData::Instance() {
    static const std::unique_ptr<AppConfigData> data = [] {
        auto loaded = std::make_unique<AppConfigData>();
        loaded->Load(DefaultPath());
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

void AppConfigData::Load(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        LOG(INFO) << "AppConfigData::Load uses the defaults: " << path << ": "
                  << file.errorString().toStdString();
        return;
    }
    const QByteArray text = file.readAll();
    Json::Value root;
    std::string errors;
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    try {
        if (!reader->parse(text.begin(), text.end(), &root, &errors) || !root.isObject())
            errors = errors.empty() ? "no JSON object" : errors;
    } catch (const Json::Exception& error) { // nesting beyond the parser's limit
        errors = error.what();
    }
    if (!errors.empty()) {
        LOG(WARNING) << "AppConfigData::Load uses the defaults: " << path << ": " << errors;
        return;
    }

    const auto read = [&](const char* key, auto& field) {
        const Json::Value& value = root[key];
        if (value.isNull())
            return;
        if (!value.is<std::decay_t<decltype(field)>>())
            LOG(WARNING) << "AppConfigData::Load ignores \"" << key << "\" in " << path << ": wrong type";
        else
            field = value.as<std::decay_t<decltype(field)>>();
    };
    read("sentryDsn", sentryDsn);
    read("language", language);
    read("theme", theme);
    read("pipeName", pipeName);
    read("agentAccount", agentAccount);
    read("logFolder", logFolder);
    read("organisation", organisation);
    read("deviceName", deviceName);
    read("enrolled", enrolled);
}
