#pragma once

#include "messages/UMessageFileDialog.h"
#include "messages/UMessageList.h"
#include "platform/link/ControllerBase.h"
#include "platform/system/SystemPreferences.h"

#include <memory>

/// Clock format, wallpaper and the administrator's messages and files. GUI thread.
class MessageController : public ControllerBase {
    Q_OBJECT

public:
    /// Messages are kept in the user's data folder.
    explicit MessageController(const SystemPreferences& preferences = SystemPreferences::Native());

    void OnPipeDataReceived(PipeKey key, const std::string& body) override;

    /// Shows the messages that an earlier start has left unread.
    void ShowUnread() { m_dialog.ShowUnread(); }

    /// Opens the list of the last messages.
    void OpenMessages();

signals:
    /// What has been done for the organisation: a message or file has come, clock and wallpaper were set.
    void MessageCame();
    void HourFormatSet(HourFormat format);
    void WallpaperSet();

private:
    void ProcessTimeFormat(const std::string& body);
    void ProcessDeviceSettingWallpaper(const std::string& body);
    void ProcessMessageFile(const std::string& body);

    const SystemPreferences& m_preferences;
    MessageHistory m_history;
    MessageFiles m_files;
    UMessageFileDialog m_dialog;
    std::unique_ptr<UMessageList> m_list;
};
