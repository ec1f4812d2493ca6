#include "platform/context/AppHelper.h"

#include "platform/ProductConstants.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/RyxPath.h"
#include "platform/context/Theme.h"
#include "platform/files/JsonFile.h"
#include "platform/link/PipeClientService.h"
#include "platform/security/LogText.h"

#include <QJsonObject>
#include <algorithm>
#include <glog/logging.h>

namespace {

constexpr qint64 LargestFile = 64 * 1024;
const QString Language = QStringLiteral("language");
const QString ThemeName = QStringLiteral("theme");
const QString TextSize = QStringLiteral("textSize");

QString ChoicesFile() {
    return QString::fromStdWString(RyxPath::GetUserDataDir()) + QStringLiteral("/preferences.json");
}

/// What the user has chosen; one that is not offered was not chosen here.
QJsonObject Choices() {
    const QJsonDocument document = JsonFile::Read(ChoicesFile(), LargestFile);
    if (!document.isObject())
        JsonFile::SetAside(ChoicesFile());
    return document.object();
}

bool Remember(const QString& name, const QJsonValue& value) {
    QJsonObject choices = Choices();
    choices.insert(name, value);
    return JsonFile::Write(ChoicesFile(), QJsonDocument(choices));
}

bool IsShipped(const QString& code) {
    const QVector<LanguageHelper::Entry> languages = LanguageHelper::Languages();
    return std::any_of(languages.begin(), languages.end(),
                       [&code](const LanguageHelper::Entry& language) { return language.code == code; });
}

} // namespace

void AppHelper::InitQss() {
    const QJsonObject choices = Choices();
    const QString theme = choices[ThemeName].toString();
    Theme::Instance()->SetTextSize(choices[TextSize].toInt());
    Theme::Instance()->Apply(
        Theme::Choices().contains(theme) ? theme : QString::fromStdString(AppConfigData::Instance()->theme));
}

void AppHelper::InitLanguage() {
    const QString language = Choices()[Language].toString();
    LanguageHelper::Instance()->SetLanguage(
        IsShipped(language) ? language : QString::fromStdString(AppConfigData::Instance()->language));
}

bool AppHelper::ChooseLanguage(const QString& code) {
    LanguageHelper::Instance()->SetLanguage(code);
    return Remember(Language, code);
}

bool AppHelper::ChooseTheme(const QString& name) {
    Theme::Instance()->Apply(name);
    return Remember(ThemeName, name);
}

bool AppHelper::ChooseTextSize(int percent) {
    Theme::Instance()->SetTextSize(percent);
    return Remember(TextSize, percent);
}

void AppHelper::LoadConfig() {
    const AppConfigData& config = *AppConfigData::Instance();
    for (const std::string& note : config.loadNotes)
        LOG(WARNING) << "AppHelper::LoadConfig " << LogText(note);
    AppContextData& context = *AppContextData::Instance();
    context.SetEnrolled(config.enrolled);
    context.SetSchoolCode(config.schoolCode);
    context.SetAdminAccount(config.adminAccount);
    context.SetDeviceName(config.deviceName);
    context.SetDeviceTags(config.deviceTags);
    context.SetPermissionList(config.permissionList);
    const std::string pipe = config.pipeName.empty() ? Product::ServicePipe : config.pipeName;
    PipeClientService::Instance()->SetServer(
        {QString::fromStdString(pipe), QString::fromStdString(config.agentAccount)});
}
