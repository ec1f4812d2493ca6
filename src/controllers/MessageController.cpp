#include "controllers/MessageController.h"

#include "entity/SettingsEntities.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/RyxPath.h"
#include "platform/security/LogText.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>
#include <glog/logging.h>

namespace {

QString HistoryFile() {
    return QDir(QString::fromStdWString(RyxPath::GetUserDataDir())).filePath(QStringLiteral("messages.json"));
}

QString FileFolder() {
    const std::string& chosen = AppConfigData::Instance()->messageFileFolder;
    return chosen.empty() ? QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)
                          : QString::fromStdString(chosen);
}

std::int64_t LargestFile() {
    return std::int64_t(std::max(1, AppConfigData::Instance()->messageFileMegabytes)) * 1024 * 1024;
}

WallpaperPlacement Placement(std::int32_t displayMode) {
    switch (displayMode) {
    case 1:
        return WallpaperPlacement::Fit;
    case 2:
        return WallpaperPlacement::Center;
    default:
        return WallpaperPlacement::Fill;
    }
}

void LogWallpaper(const std::string& what) {
    LOG(INFO) << "MessageController::ProcessDeviceSettingWallpaper " << what;
}

} // namespace

MessageController::MessageController(const SystemPreferences& preferences)
    : m_preferences(preferences),
      m_history(HistoryFile()),
      m_files(m_history, FileFolder(), LargestFile()),
      m_dialog(m_history, m_files) {}

void MessageController::OnPipeDataReceived(PipeKey key, const std::string& body) {
    switch (key) {
    case PipeKey::MessageFile:
        ProcessMessageFile(body);
        break;
    case PipeKey::TimeFormatSetting:
        ProcessTimeFormat(body);
        break;
    case PipeKey::WallpaperSetting:
        ProcessDeviceSettingWallpaper(body);
        break;
    default:
        break;
    }
}

void MessageController::ProcessTimeFormat(const std::string& body) {
    HourFormatSettingProperty property;
    property.ReadFromString(body);
    const HourFormat format = property.hourFormatSetting == 0 ? HourFormat::Hours12 : HourFormat::Hours24;
    m_preferences.SetHourFormat(format);
    emit HourFormatSet(format);
}

void MessageController::ProcessDeviceSettingWallpaper(const std::string& body) {
    BootLogoDataRequest request;
    request.ReadFromString(body);
    const std::string& chosen = request.fileInfoParams.path;
    const QString file = chosen.empty() ? m_preferences.DefaultWallpaper() : QString::fromStdString(chosen);
    if (file.isEmpty())
        return LogWallpaper("changes nothing: no file is named, and there is no default one here");
    if (!QFileInfo(file).isFile())
        return LogWallpaper("SetWallpaper failed, file not exists: " + LogText(file));
    m_preferences.SetWallpaper(file, Placement(request.displayMode), LogWallpaper);
    emit WallpaperSet();
}

void MessageController::ProcessMessageFile(const std::string& body) {
    MessageRequest request;
    request.ReadFromString(body);
    if (!request.Withdraws() && !request.HasText() && !request.HasFile()) {
        LOG(INFO) << "MessageController::ProcessMessageFile neither a text nor a file";
        return;
    }
    FileInfoParams file;
    if (request.HasFile())
        file = request.fileInfoParams;
    m_dialog.SetDataRequest(request, file);
    if (!request.Withdraws())
        emit MessageCame();
}

void MessageController::OpenMessages() {
    if (!m_list) {
        m_list = std::make_unique<UMessageList>(m_history);
        connect(m_list.get(), &UMessageList::Chosen, &m_dialog, &UMessageFileDialog::ShowAgain);
    }
    m_list->show();
    m_list->raise();
    m_list->activateWindow();
}
