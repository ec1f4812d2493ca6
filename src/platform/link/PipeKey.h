#pragma once

#include <cstdint>

/// Message keys shared with the agent service, name and number. A key may travel both ways with
/// different bodies; docs/pipe-protocol.md tells direction and body of each.
#define RYX_PIPE_KEYS(KEY)                                                                                   \
    KEY(ContextRequest, 0)                                                                                   \
    KEY(ContextReply, 1)                                                                                     \
    KEY(IotStatusNotify, 2)                                                                                  \
    KEY(Binding, 3)                                                                                          \
    KEY(DeviceUnenrolled, 4)                                                                                 \
    KEY(DeviceNameChanged, 5)                                                                                \
    KEY(DeviceTagsChanged, 6)                                                                                \
    KEY(AdminAccountChanged, 7)                                                                              \
    KEY(AutoEnroll, 9)                                                                                       \
    KEY(UnlockPasswordUpdate, 10)                                                                            \
    KEY(UnbindPasswordUpdate, 11)                                                                            \
    KEY(OtaVersionInfo, 12)                                                                                  \
    KEY(OtaUpdateRequest, 13)                                                                                \
    KEY(OtaDownloadProgress, 14)                                                                             \
    KEY(ScreenLock, 33)                                                                                      \
    KEY(ScreenLockReset, 34)                                                                                 \
    KEY(ScreenUnlock, 35)                                                                                    \
    KEY(MessageFile, 44)                                                                                     \
    KEY(LiveChannelList, 46)                                                                                 \
    KEY(LiveChannelControl, 47)                                                                              \
    KEY(FeaturesPopupsCommand, 48)                                                                           \
    KEY(PopupBlockResult, 49)                                                                                \
    KEY(PopupPolicy, 50)                                                                                     \
    KEY(PopupDetected, 51)                                                                                   \
    KEY(ScreenNotifySetting, 52)                                                                             \
    KEY(ScreenShotSetting, 53)                                                                               \
    KEY(TimeFormatSetting, 69)                                                                               \
    KEY(WakeUpServer, 72)                                                                                    \
    KEY(DisconnectWifi, 74)                                                                                  \
    KEY(SwitchChannel, 75)                                                                                   \
    KEY(LocationSetting, 76)                                                                                 \
    KEY(SettingPermission, 77)                                                                               \
    KEY(SettingsLockShow, 78)                                                                                \
    KEY(SettingsLockUnlock, 79)                                                                              \
    KEY(SettingsLockHide, 80)                                                                                \
    KEY(ControllExit, 81)                                                                                    \
    KEY(WallpaperSetting, 82)

enum class PipeKey : std::int32_t {
#define RYX_ENUMERATOR(name, number) name = number,
    RYX_PIPE_KEYS(RYX_ENUMERATOR)
#undef RYX_ENUMERATOR
};

/// The key's name as written above, or nullptr for a number that is no key of this product.
const char* PipeKeyName(PipeKey key);
