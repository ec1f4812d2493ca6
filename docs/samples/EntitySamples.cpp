// Writes docs/pipe-bodies.md: for every key of the pipe its direction, its entity and a sample body as the
// entity itself writes it. The build runs it and a test compares, so the page cannot go stale.

#include "entity/AppEntities.h"
#include "entity/EnrollEntities.h"
#include "entity/FileEntities.h"
#include "entity/RemoteEntities.h"
#include "entity/SettingsEntities.h"
#include "platform/link/PipeKey.h"

#include <cstdint>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr const char* fromService = "From the service";
constexpr const char* toService = "To the service";

struct Body {
    PipeKey key;
    const char* direction;
    std::string what;   ///< The entity's name, or words for a body that is none.
    std::string sample; ///< Empty for a message without a body.
};

Body None(PipeKey key, const char* direction) {
    return {key, direction, "no body", ""};
}

Body Text(PipeKey key, const char* direction, const char* what, const char* sample) {
    return {key, direction, std::string("plain text: ") + what, sample};
}

FileInfoParams File(const char* name) {
    FileInfoParams file;
    file.fileId = 4711;
    file.md5 = "9e107d9d372bb6826bd81d3542a419d6";
    file.name = name;
    file.url = std::string("https://files.example.org/") + name;
    return file;
}

LiveChannelRequest Channel() {
    LiveChannelRequest channel;
    channel.id = 1;
    channel.jobStatus = true;
    channel.name = "Morning news";
    channel.playDuration = 30;
    channel.url = "https://live.example.org/news";
    return channel;
}

PopupsTypeParams Rule() {
    PopupsTypeParams rule;
    rule.appName = "player.exe";
    rule.popName = "Offer of the day";
    rule.popClassName = "OfferWindow";
    rule.popProductName = "Player";
    rule.popSignName = "Example Software Ltd.";
    rule.popDirectory = "C:/Program Files/Player";
    return rule;
}

IotStatusEntity Status() {
    IotStatusEntity body;
    body.status = 2;
    return body;
}

DeviceBindingParam BindingRequest() {
    DeviceBindingParam body;
    body.code = "A1B2C3";
    body.email = "admin@example.org";
    body.binding = true;
    body.deviceName = "Room 12";
    body.tags = {"first floor", "east wing"};
    return body;
}

DeviceBindingResult BindingAnswer() {
    DeviceBindingResult body;
    body.binding = true;
    body.result = true;
    body.deviceName = "Room 12";
    body.schoolCode = "A1B2C3";
    body.email = "admin@example.org";
    body.permissionList = {"location", "screen"};
    return body;
}

DeviceBindingResult Unenrolled() {
    DeviceBindingResult body;
    body.result = true;
    return body;
}

DeviceNameProperty Name() {
    DeviceNameProperty body;
    body.name = "Room 14";
    return body;
}

DeviceTagsProperty Tags() {
    DeviceTagsProperty body;
    body.tags = {"second floor"};
    return body;
}

AdminAccountDataNotify Account() {
    AdminAccountDataNotify body;
    body.email = "it@example.org";
    return body;
}

AutoEnrollParams AutoEnrollment() {
    AutoEnrollParams body;
    body.code = "A1B2C3";
    body.adminAccount = "admin@example.org";
    body.tag = "first floor";
    body.name = "Room 12";
    return body;
}

OtaUpdateVersionInfo Version() {
    OtaUpdateVersionInfo body;
    body.hasUpdate = true;
    body.fileSize = 73400320;
    body.policyId = "17";
    body.downloadUrl = "https://files.example.org/ryx-1.24.0.3000.exe";
    body.name = "1.24";
    body.fileMd5 = "9e107d9d372bb6826bd81d3542a419d6";
    body.versionCode = "1.24.0.3000";
    body.updateDesc = "Quicker start.";
    return body;
}

OtaUpdateDataRequest Update() {
    OtaUpdateDataRequest body;
    body.isNeedUpdate = true;
    body.apkUrl = "https://files.example.org/ryx-1.24.0.3000.exe";
    body.fileMd5 = "9e107d9d372bb6826bd81d3542a419d6";
    body.versionCode = "1.24.0.3000";
    return body;
}

OtaDownloadProgressInfo Progress() {
    OtaDownloadProgressInfo body;
    body.progress = 50;
    body.dltotal = 73400320;
    body.dlcurrent = 36700160;
    return body;
}

DeviceScreenLock Lock() {
    DeviceScreenLock body;
    body.endAt = "14:30";
    return body;
}

TextDataRequest Message() {
    TextDataRequest body;
    body.jobStatus = true;
    body.loopTime = 1;
    body.playDuration = 60;
    body.operationRight = true;
    body.text = "The library closes at six.";
    return body;
}

FileDataRequest FileMessage() {
    FileDataRequest body;
    body.fileInfoParams = File("timetable.pdf");
    return body;
}

LiveChannelListRequest Channels() {
    LiveChannelListRequest body;
    body.liveChannelList = {Channel()};
    return body;
}

SyncPopupsParams Unblocked() {
    SyncPopupsParams body;
    body.popStatus = true;
    body.hasOne = true;
    body.popupsDetails = {Rule()};
    return body;
}

SyncPopupsParams Rules() {
    SyncPopupsParams body;
    body.popStatus = true;
    body.enable = true;
    body.popupsDetails = {Rule()};
    return body;
}

UploadPopupsParams Detected() {
    const PopupsTypeParams rule = Rule();
    UploadPopupsParams body;
    body.type = 1;
    body.appName = rule.appName;
    body.popName = rule.popName;
    body.popClassName = rule.popClassName;
    body.popProductName = rule.popProductName;
    body.popSignName = rule.popSignName;
    body.popDirectory = rule.popDirectory;
    body.updateTime = 1735689600000;
    return body;
}

UploadPopupsParams Reported() {
    UploadPopupsParams body = Detected();
    body.popFileKey = "popups/4711.png";
    body.appFileKey = "popups/4712.png";
    return body;
}

ErrorInfo ReportAnswer() {
    ErrorInfo body;
    body.code = "0";
    return body;
}

DeviceSettingNotify Switch() {
    DeviceSettingNotify body;
    body.type = 1;
    body.status = true;
    return body;
}

HourFormatSettingProperty HourFormat() {
    HourFormatSettingProperty body;
    body.mode = 1;
    return body;
}

WakeServerInfo WakeServer() {
    WakeServerInfo body;
    body.wakeServerName = "Room 10";
    body.isOnLine = true;
    return body;
}

PermissionInfo Permissions() {
    PermissionInfo body;
    body.keyList = {"location", "screen"};
    return body;
}

BootLogoDataRequest Wallpaper() {
    BootLogoDataRequest body;
    body.fileInfoParams = File("wallpaper.jpg");
    body.fileInfoParams.path = "C:/ProgramData/Velmora/RYX/wallpaper.jpg";
    body.displayMode = 1;
    return body;
}

#define ENTITY(key, direction, Type, sample)                                                                 \
    Body {                                                                                                   \
        PipeKey::key, direction, "`" #Type "`", static_cast<const Type&>(sample).WriteToString()             \
    }

std::vector<Body> Bodies() {
    const char* hash = "the hash that the password pad compares with";
    return {
        None(PipeKey::ContextRequest, toService),
        Text(PipeKey::ContextReply, fromService, "the context that names the device in uploads",
             "device-0815"),
        ENTITY(IotStatusNotify, fromService, IotStatusEntity, Status()),
        ENTITY(Binding, toService, DeviceBindingParam, BindingRequest()),
        ENTITY(Binding, fromService, DeviceBindingResult, BindingAnswer()),
        ENTITY(DeviceUnenrolled, fromService, DeviceBindingResult, Unenrolled()),
        ENTITY(DeviceNameChanged, fromService, DeviceNameProperty, Name()),
        ENTITY(DeviceTagsChanged, fromService, DeviceTagsProperty, Tags()),
        ENTITY(AdminAccountChanged, fromService, AdminAccountDataNotify, Account()),
        ENTITY(AutoEnroll, fromService, AutoEnrollParams, AutoEnrollment()),
        Text(PipeKey::UnlockPasswordUpdate, fromService, hash, "(hash)"),
        Text(PipeKey::UnbindPasswordUpdate, fromService, hash, "(hash)"),
        None(PipeKey::OtaVersionInfo, toService),
        ENTITY(OtaVersionInfo, fromService, OtaUpdateVersionInfo, Version()),
        ENTITY(OtaUpdateRequest, toService, OtaUpdateDataRequest, Update()),
        ENTITY(OtaDownloadProgress, fromService, OtaDownloadProgressInfo, Progress()),
        ENTITY(ScreenLock, fromService, DeviceScreenLock, Lock()),
        None(PipeKey::ScreenLockReset, fromService),
        None(PipeKey::ScreenUnlock, toService),
        None(PipeKey::ScreenUnlock, fromService),
        ENTITY(MessageFile, fromService, TextDataRequest, Message()),
        ENTITY(MessageFile, fromService, FileDataRequest, FileMessage()),
        ENTITY(LiveChannelList, fromService, LiveChannelListRequest, Channels()),
        ENTITY(LiveChannelControl, toService, LiveChannelRequest, Channel()),
        ENTITY(FeaturesPopupsCommand, toService, SyncPopupsParams, Unblocked()),
        ENTITY(PopupBlockResult, toService, UploadPopupsParams, Reported()),
        ENTITY(PopupBlockResult, fromService, ErrorInfo, ReportAnswer()),
        ENTITY(PopupPolicy, fromService, SyncPopupsParams, Rules()),
        ENTITY(PopupDetected, toService, UploadPopupsParams, Detected()),
        ENTITY(ScreenNotifySetting, toService, DeviceSettingNotify, Switch()),
        ENTITY(ScreenNotifySetting, fromService, DeviceSettingNotify, Switch()),
        ENTITY(ScreenShotSetting, toService, DeviceSettingNotify, Switch()),
        ENTITY(ScreenShotSetting, fromService, DeviceSettingNotify, Switch()),
        ENTITY(TimeFormatSetting, fromService, HourFormatSettingProperty, HourFormat()),
        ENTITY(WakeUpServer, fromService, WakeServerInfo, WakeServer()),
        Text(PipeKey::DisconnectWifi, fromService, "the network's name", "Guests"),
        None(PipeKey::SwitchChannel, fromService),
        ENTITY(LocationSetting, toService, DeviceSettingNotify, Switch()),
        ENTITY(LocationSetting, fromService, DeviceSettingNotify, Switch()),
        ENTITY(SettingPermission, fromService, PermissionInfo, Permissions()),
        None(PipeKey::SettingsLockShow, fromService),
        None(PipeKey::SettingsLockUnlock, toService),
        None(PipeKey::SettingsLockHide, fromService),
        None(PipeKey::ControllExit, fromService),
        ENTITY(WallpaperSetting, fromService, BootLogoDataRequest, Wallpaper()),
    };
}

/// The section of one key, or nothing when no body is told for it.
std::string Section(PipeKey key, const char* name, const std::vector<Body>& bodies) {
    std::string bodyText;
    for (const Body& body : bodies) {
        if (body.key != key)
            continue;
        bodyText += std::string(body.direction) + ": " + body.what + "\n\n";
        if (!body.sample.empty()) {
            const bool isJson = body.sample.front() == '{';
            bodyText +=
                std::string(isJson ? "```json\n" : "```\n") + body.sample + (isJson ? "" : "\n") + "```\n\n";
        }
    }
    if (bodyText.empty())
        return "";
    return "## " + std::to_string(static_cast<std::int32_t>(key)) + " `" + name + "`\n\n" + bodyText;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: entity_samples FILE\n";
        return 2;
    }
    std::string page =
        "# Bodies on the pipe\n\n"
        "For every key the entity that travels under it and a sample body. Headers in `src/entity`\n"
        "tell what the fields mean.\n\n"
        "This page is written by `entity_samples` (docs/samples). After a change of an entity, copy\n"
        "`docs/samples/pipe-bodies.md` of the build folder over it.\n\n";
    const std::vector<Body> bodies = Bodies();
#define RYX_SECTION(name, number)                                                                            \
    if (const std::string section = Section(PipeKey::name, #name, bodies); !section.empty())                 \
        page += section;                                                                                     \
    else {                                                                                                   \
        std::cerr << "no body is told for key " #name "\n";                                                  \
        return 1;                                                                                            \
    }
    RYX_PIPE_KEYS(RYX_SECTION)
#undef RYX_SECTION
    page.pop_back();

    std::ofstream file(argv[1], std::ios::binary);
    file << page;
    if (!file.flush()) {
        std::cerr << "cannot write " << argv[1] << '\n';
        return 1;
    }
    return 0;
}
