#include "platform/context/AppHelper.h"

#include "platform/ProductConstants.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"
#include "platform/context/LanguageHelper.h"
#include "platform/context/Theme.h"
#include "platform/link/PipeClientService.h"
#include "platform/security/LogText.h"

#include <glog/logging.h>

void AppHelper::InitQss() {
    Theme::Instance()->Apply(QString::fromStdString(AppConfigData::Instance()->theme));
}

void AppHelper::InitLanguage() {
    LanguageHelper::Instance()->SetLanguage(QString::fromStdString(AppConfigData::Instance()->language));
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
