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
