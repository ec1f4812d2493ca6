#include "tests/entity/EntityCases.h"

#include "entity/AppEntities.h"
#include "entity/EnrollEntities.h"
#include "entity/FileEntities.h"
#include "entity/RemoteEntities.h"
#include "entity/SettingsEntities.h"

#include <cstdlib>
#include <iostream>

namespace {

template <class Entity>
std::string WriteDefault() {
    return Entity().WriteToString();
}

template <class Entity>
std::string Rewrite(const std::vector<std::string>& bodies) {
    Entity entity;
    for (const std::string& body : bodies)
        entity.ReadFromString(body);
    return entity.WriteToString();
}

template <class Entity>
std::string Dump(Entity& entity) {
    FieldDump dump;
    VisitFields(entity, dump);
    return dump.Text();
}

template <class Entity>
std::pair<std::string, std::string> RoundTrip() {
    Entity filled;
    FieldFiller filler;
    VisitFields(filled, filler);
    Entity fresh;
    fresh.ReadFromString(filled.WriteToString());
    return {Dump(filled), Dump(fresh)};
}

template <class Entity>
std::string WriteFilled() {
    Entity entity;
    FieldFiller filler;
    VisitFields(entity, filler);
    return entity.WriteToString();
}

template <class Entity>
EntityCase Case(const char* name, const char* keys) {
    return {name, keys, WriteDefault<Entity>, WriteFilled<Entity>, Rewrite<Entity>, RoundTrip<Entity>};
}

#define ENTITY(Type, keys) Case<Type>(#Type, keys)

const std::vector<EntityCase>& BaseCases() {
    static const std::vector<EntityCase> cases = {
        ENTITY(OperationCommandRequest, "operationId:int operationDeviceLogId:int"),
        ENTITY(OperationCommandResponse, "operationId:int operationDeviceLogId:int resultCode:int"),
    };
    return cases;
}

const std::vector<EntityCase>& EnrollCases() {
    static const std::vector<EntityCase> cases = {
        ENTITY(AutoEnrollParams, "code:string adminAccount:string needMigration:bool tag:string name:string"),
        ENTITY(UsbEnrollmentFile, "code:string account:string deviceName:string devicePrefix:string "
                                  "deviceSuffix:string tags:[string]"),
        ENTITY(DeviceAuthDataRequest, "code:string email:string type:int isBind:bool os:string appKey:string "
                                      "plat:string product:string sn:string version:string hasAuto:bool"),
        ENTITY(
            DeviceBindingParam,
            "code:string email:string binding:bool deviceName:string sn:string hasAuto:bool tags:[string]"),
        ENTITY(DeviceBindingInfo, "code:string email:string operationDeviceLogId:int operationId:int "
                                  "binding:bool name:string tags:[string] wakeServerEntity:WakeServerInfo"),
        ENTITY(DeviceBindingResult,
               "binding:bool result:bool code:string deviceName:string schoolCode:string "
               "email:string permissionList:[string]"),
        ENTITY(PermissionInfo, "keyList:[string]"),
        ENTITY(AdminAccountDataNotify, "+command email:string"),
        ENTITY(DeviceBaseInfo,
               "name:string timeZone:string ip:string version:string product:string tags:[string]"),
        ENTITY(DeviceNameProperty, "+command name:string"),
        ENTITY(DeviceTagsProperty, "+command tags:[string]"),
        ENTITY(DevicePropertyInfo,
               "useStorage:int64 totalStorage:int64 useRam:int64 totalRam:int64 os:string osVersion:string "
               "touchFrame:string productType:string wolSwitch:bool cpu:string serialNumber:string "
               "screenWidth:int screenHeight:int nicInfoParamsList:NicInfoParamsList drives:[string]"),
        ENTITY(NICInfo, "nicName:string mac:string publicIp:string privateIp:string nicType:string"),
        ENTITY(NicInfoParamsList, "nicInfoParamsList:[NICInfo]"),
        ENTITY(DeviceCustomerChannelInfo, "customerChannel:string <os:bool >os:string product:string"),
        ENTITY(DeviceLocationInfo, "latitude:double longitude:double ip:string"),
        ENTITY(DeviceLocationParams, "ip:string status:bool wifiAccessPoints:[DeviceLocationWifiInfo]"),
        ENTITY(DeviceLocationWifiInfo, "signalStrength:double macAddress:string"),
        ENTITY(FactoryResetParams, "+command type:int"),
        ENTITY(ErrorInfo, "code:string result:string"),
        ENTITY(IotEnvironment, "registerUrl:string brokerUrl:string productKey:string productSecret:string"),
        ENTITY(IotStatusEntity, "status:int"),
        ENTITY(IotResult, "success:bool code:string message:string data:string traceId:string "
                          "deviceId:string method:string"),
        ENTITY(IotProperty,
               "name:string tags:string blocklist:string deleteBlocklist:string profileSwitch:string "
               "autoSleep:string autoPowerSleep:string wolServer:string hourFormatSetting:string "
               "dateAndTimeSetting:string timeZone:string wifiSettings:string profileCertList:string "
               "wifiAllowList:string offlineTasks:string profileUninstallCertList:string settingsLock:string "
               "brightness:string lockByButton:string savingMode:string volume:string"),
    };
    return cases;
}

const std::vector<EntityCase>& SettingsCases() {
    static const std::vector<EntityCase> cases = {
        ENTITY(SettingsParams, "+command enableSettingsLock:int"),
        ENTITY(DeviceSettingNotify, "+command type:int status:bool content:string"),
        ENTITY(AutoSleepProperty, "+command autoSleepTime:int"),
        ENTITY(AutoPowerSleepProperty, "+command autoPowerSleepTime:int"),
        ENTITY(VolumeProperty, "+command value:int"),
        ENTITY(BrightnessProperty, "+command value:int"),
        ENTITY(LockByButtonProperty, "+command <turnOn:int >turnOn:bool"),
        ENTITY(SavingModeProperty,
               "+command savingModeStatus:int startAt:string endAt:string afterMinutes:int action:int"),
        ENTITY(TimeZoneProperty, "+command zoneId:string"),
        ENTITY(HourFormatSettingProperty, "+command mode:int"),
        ENTITY(DateAndTimeSettingProperty, "+command mode:int"),
        ENTITY(WolServerProperty, "+command change:bool enableWolServer:bool"),
        ENTITY(WifiProperty, "+command enable:bool wifiSsidList:[string]"),
        ENTITY(WifiInfoParams, "+command ssidName:string password:string eapMethod:int phase2Method:int "
                               "identity:string securityType:int anonymousIdentity:string autoConnect:bool "
                               "connectEvenNotBroadcasting:bool caCert:CertificateListEntity"),
        ENTITY(WifiAllowListEntity, "ssidname:string"),
        ENTITY(WifiStatus, "wifiName:string <connectStatus:bool >wifiOnlineStatus:bool"),
        ENTITY(CertificateListEntity,
               "+command certId:int type:int fileKey:string md5:string certName:string "
               "password:string fileName:string commonName:string"),
        ENTITY(CertificateProperty, "+command <certInstallParamsList:[CertificateListEntity] "
                                    ">certificateEntityList:[CertificateListEntity]"),
        ENTITY(CertificateUnInstallProperty, "+command <certUninstallParamsList:[CertificateListEntity] "
                                             ">certificateEntityList:[CertificateListEntity]"),
        ENTITY(BlockListEntity, "url:string"),
        ENTITY(BlockListProperty, "+command blockType:int blocklistEntityList:[BlockListEntity]"),
        ENTITY(DeviceScreenLock, "endAt:string"),
        ENTITY(SwitchRecurringRequest, "+command status:bool"),
    };
    return cases;
}

const std::vector<EntityCase>& AppCases() {
    static const std::vector<EntityCase> cases = {
        ENTITY(AppInfo, "appName:string packageName:string versionCode:int appSize:int64 isNative:bool "
                        "isVisible:bool iconFileKey:string versionName:string winAppType:int"),
        ENTITY(AppInfoParams,
               "appId:int md5:string fileName:string url:string <appName:string <silentParams:string "
               "mainProgram:string path:string installCommand:string uninstallCommand:string"),
        ENTITY(AppInfoParamsDataFeedback, "+command code:string"),
        ENTITY(AppInstallInfo, "+command appInfos:[AppInfo]"),
        ENTITY(AppUninstallInfoParams, "+command packageName:string appLocation:string winAppType:int"),
        ENTITY(AppManageDataRequest, "+command autoLaunching:bool appInfoParams:AppInfoParams"),
        ENTITY(SetAppVisibility, "+command appId:int packageName:string isVisible:bool"),
        ENTITY(DeviceAppUsage, "deviceAppUsageList:[DeviceAppUsageInfo] date:string"),
        ENTITY(DeviceAppUsageInfo, "packageName:string versionCode:int appName:string versionName:string "
                                   "openTimes:int duration:int iconFileKey:string"),
        ENTITY(PopupsTypeParams, "appName:string popName:string popClassName:string popProductName:string "
                                 "popSignName:string popDirectory:string"),
        ENTITY(PopupsBlockDetailsParams, "popStatus:bool blockNum:int popupsNum:int"),
        ENTITY(SyncPopupsParams, "popStatus:bool hasOne:bool enable:bool popupsDetails:[PopupsTypeParams]"),
        ENTITY(UploadPopupsParams,
               "type:int appName:string popName:string popClassName:string popProductName:string "
               "popSignName:string popDirectory:string popFileKey:string updateTime:int64 appFileKey:string"),
        ENTITY(SyncWhiteListParam, "+command defaultWhitelist:[string]"),
    };
    return cases;
}

const std::vector<EntityCase>& FileCases() {
    static const std::vector<EntityCase> cases = {
        ENTITY(TextDataRequest,
               "+command jobStatus:bool loopTime:int playDuration:int operationRight:bool text:string"),
        ENTITY(FileDataRequest, "+command fileInfoParams:FileInfoParams"),
        ENTITY(FileInfoParams, "fileId:uint64 md5:string name:string url:string path:string"),
        ENTITY(FileDto, "name:string url:string"),
        ENTITY(MultimediaDataRequest,
               "+command jobStatus:bool loopTime:int playDuration:int operationRight:bool "
               "fileInfoParams:FileInfoParams"),
        ENTITY(BellDataRequest,
               "+command jobStatus:bool timeMode:int timeLength:int fileInfoParams:FileInfoParams"),
        ENTITY(EmergencyDataRequest, "+command text:string fileInfoParams:FileInfoParams"),
        ENTITY(WallpaperDataRequest,
               "+command wallpaperMode:int displayMode:int fileInfoParams:FileInfoParams"),
        ENTITY(BootLogoDataRequest, "+command fileInfoParams:FileInfoParams logoMode:int displayMode:int"),
        ENTITY(OtaUpdateDataRequest,
               "+command isNeedUpdate:bool apkUrl:string fileMd5:string versionCode:string"),
        ENTITY(OtaUpdateVersionInfo,
               "hasUpdate:bool isSilentDownload:bool isForceUpdate:bool fileSize:int64 policyId:string "
               "downloadUrl:string name:string fileMd5:string versionCode:string updateDesc:string"),
        ENTITY(OtaDownloadProgressInfo,
               "finish:bool success:bool progress:int dltotal:double dlcurrent:double"),
        ENTITY(
            UpdateGetDto,
            "appKey:string policyId:string platform:string versionCode:string deviceMac:string tag:string"),
        ENTITY(UpdateGetResult, "status:string data:OtaUpdateVersionInfo"),
        ENTITY(CustomEditionDataRequest, "isNeedUpdate:bool url:string fileMd5:string versionCode:string"),
        ENTITY(
            ReportInfoDto,
            "version:string os:string osVersion:string customerChannel:string model:string deviceType:string "
            "platform:string screenSize:string isMadeInVorn:bool appFlavor:string"),
        ENTITY(WebFeedbackDto,
               "email:string content:string title:string platform:string pictures:[FileDto] annex:[FileDto]"),
        ENTITY(ReportFeedbackLog, "feedbackId:int logCode:string logName:string"),
        ENTITY(PullFeedbackLog, "feedbackId:int"),
        ENTITY(ReportBugLogInfo, "+command traceId:string fileKey:string"),
        ENTITY(ExportBugLogInfo, "+command traceId:string"),
        ENTITY(NubraFieldInfo, "name:string value:string"),
        ENTITY(NubraFileInfo, "fileKey:string downloadUrl:string"),
        ENTITY(NubraUploadPolicy,
               "httpMethod:string uploadUrl:string needCallServer:bool keyInfoFields:[NubraFieldInfo] "
               "headerFields:[NubraFieldInfo] formFields:[NubraFieldInfo] needExtractHeaderNames:[string]"),
        ENTITY(NubraUploadPolicyData, "fileKey:string uploadPolicyVo:NubraUploadPolicy"),
        ENTITY(NubraUploadPolicyResponse, "status:string data:NubraUploadPolicyData"),
        ENTITY(NubraUploadResponse, "code:int message:string data:NubraUploadResult"),
        ENTITY(NubraUploadResult, "downloadUrl:string fileKey:string fileSize:int"),
        ENTITY(NubraNotifyUploadResultResponse, "status:string data:NubraFileInfo"),
        ENTITY(NotifyDeviceLogUploadResponse, "data:string status:string"),
        ENTITY(ClearCacheInfo, "+command sessionId:string statusType:int "
                               "clearDeviceCacheProcessStatusParams:[ClearCacheInfoParams]"),
        ENTITY(ClearCacheInfoParams, "value:string rubbishType:int"),
        ENTITY(LiveChannelRequest, "+command id:int jobStatus:bool name:string playDuration:int url:string"),
        ENTITY(LiveChannelListRequest, "liveChannelList:[LiveChannelRequest]"),
        ENTITY(TimerParams, "+command timeMode:int jobStatus:bool timer:[CommonDataTimer]"),
        ENTITY(CommonDataTimer, "week:string time:[string]"),
        ENTITY(SyncTimerInfo, "+command id:int64 jobStatus:bool"),
        ENTITY(SyncTimerRequest, "+command timers:[SyncTimerInfo]"),
        ENTITY(PowerOnTimestampInfo,
               "lastOnTime:string lastOffTime:string thisOnTime:string thisOffTime:string"),
        ENTITY(DevicePowerEntity, "+command versionId:string <taskMap:object >taskMap:[TimerParams]"),
        ENTITY(ScreenShotDataRequest, "+command width:int height:int intervalTime:int"),
        ENTITY(ScreenShotDataResponse, "code:int fileKey:string result:string"),
        ENTITY(ScreenControlDataRequest, "type:int <x:string >x:double <y:string >y:double event:int "
                                         "code:int arg1:int clipboardText:string"),
    };
    return cases;
}

const std::vector<EntityCase>& RemoteCases() {
    static const std::vector<EntityCase> cases = {
        ENTITY(WebRTCSdpInfo, "isControl:bool type:string sdp:string"),
        ENTITY(WebRTCClientSdpInfo, "aspectRatio:double type:string sdp:string apiList:[int] error:int"),
        ENTITY(WebRTCClientSdpParam, "sessionId:string description:string"),
        ENTITY(WebRTCRemoteSdpDataRequest, "+command sessionId:string description:string"),
        ENTITY(WebRTCCandidateInfo, "candidate:string sdpMid:string sdpMlineIndex:int"),
        ENTITY(WebRTCClientCandidateParam, "candidates:[string] iceGatheringState:int sessionId:string"),
        ENTITY(WebRTCRemoteCandidateDataRequest, "candidate:[string] sessionId:string"),
        ENTITY(WebRTCErrorInfo, "sessionId:string errorInfo:string"),
        ENTITY(CreateWebRTCDataRequest,
               "+command sessionId:string maxBitrate:int maxFramerate:int maxHeight:int maxWidth:int "
               "minBitrate:int minFramerate:int minHeight:int minWidth:int"),
        ENTITY(CreateWebRTCParams, "createWebRTC:string iceServers:string"),
        ENTITY(CreateVideoWebRTC,
               "deviceKey:string sessionId:string maxBitrate:int maxFramerate:int maxHeight:int maxWidth:int "
               "minBitrate:int minFramerate:int minHeight:int minWidth:int cameraId:string "
               "iceReturnData:string"),
        ENTITY(DeleteWebRTCDataRequest, "sessionId:string"),
        ENTITY(GetIceServersResult, "services:[IceServerInfo]"),
        ENTITY(IceServerInfo,
               "id:int serverType:int isPublic:bool ip:string userName:string password:string port:port"),
        ENTITY(ScreenShareDataRequest, "sessionId:string message:string type:int error:int"),
        ENTITY(ExternalDeviceKey, "deviceKey:string"),
        ENTITY(ExternalDeviceInfo, "name:string"),
        ENTITY(ExternalDeviceAudio, "speakers:bool"),
        ENTITY(ExternalDeviceFirmware, "version:string appKey:string updateOnline:bool"),
        ENTITY(ExternalDeviceFirmwareUpdate, "deviceKey:string url:string md5:string name:string"),
        ENTITY(ExternalDeviceControlFeedback,
               "deviceKey:string functionName:string code:string result:string"),
        ENTITY(SetExternalDeviceParams,
               "deviceKey:string paramsName:string paramsValue:string functionName:string"),
        ENTITY(ExternalDeviceParam, "paramsName:string paramsValue:string functionName:string"),
        ENTITY(ResetExternalDeviceParams, "deviceKey:string paramList:[ExternalDeviceParam]"),
        ENTITY(ChannelCommandParams, "channelName:string channelId:int"),
        ENTITY(ChannelSwitchParams, "channelCommandParams:ChannelCommandParams"),
        ENTITY(DeviceChannelParams, "name:string isLock:bool"),
        ENTITY(DeviceChannelInfo, "deviceChannelParams:[DeviceChannelParams] onChannel:string"),
        ENTITY(WakeServerData, "Id:uint64 BindingCode:string Uid:string ServerName:string TimeSpan:string"),
        ENTITY(WakeServerInfo, "wakeServerName:string isOnLine:bool code:int"),
        ENTITY(DeviceWakeServer, "operationDeviceLogId:int operationId:int wakeServerEntity:WakeServerInfo"),
        ENTITY(SendWolParams, "mac:string ip:string"),
        ENTITY(DeviceWolParams, "macsAndIps:string"),
    };
    return cases;
}

} // namespace

const std::vector<EntityFamily>& EntityFamilies() {
    static const std::vector<EntityFamily> families = {
        {"base", BaseCases()}, {"enroll", EnrollCases()}, {"settings", SettingsCases()},
        {"app", AppCases()},   {"file", FileCases()},     {"remote", RemoteCases()}};
    return families;
}

const EntityCase& FindEntityCase(const std::string& name) {
    for (const EntityFamily& family : EntityFamilies()) {
        for (const EntityCase& entity : family.entities) {
            if (entity.name == name)
                return entity;
        }
    }
    std::cerr << "no entity case " << name << '\n';
    std::abort();
}
