#include "platform/context/RyxPath.h"

#include "platform/context/AppConfigData.h"
#include "platform/system/SystemSession.h"

#include <QDir>

std::wstring RyxPath::GetRyxLogDir() {
    const std::string& chosen = AppConfigData::Instance()->logFolder;
    const QString folder =
        chosen.empty() ? SystemSession::Native().LogFolder() : QString::fromStdString(chosen);
    QDir().mkpath(folder);
    return QDir::toNativeSeparators(folder).toStdWString();
}

std::wstring RyxPath::GetUserDataDir() {
    const std::string& chosen = AppConfigData::Instance()->dataFolder;
    return (chosen.empty() ? SystemSession::Native().UserDataFolder() : QString::fromStdString(chosen))
        .toStdWString();
}
