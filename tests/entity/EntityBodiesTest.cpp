#include "tests/entity/EntityOutcome.h"

#include "entity/IotEntities.h"
#include "entity/SettingsEntities.h"

#include <type_traits>
#include <utility>

TEST(EntityBodiesTest, AsymmetricBodies) {
    const std::string base = R"("operationId": 1, "operationDeviceLogId": 2)";
    const std::string file = R"("appId": 1, "fileName": "f", "mainProgram": "", "path": "",
        "installCommand": "", "uninstallCommand": "")";
    const std::string certificate = R"({"operationId": 0, "operationDeviceLogId": 0, "certId": 7, "type": 2,
        "fileKey": "k", "md5": "", "certName": "", "password": "", "fileName": "", "commonName": ""})";
    const auto timer = [](const char* mode) {
        return R"({"operationId": 0, "operationDeviceLogId": 0, "jobStatus": true, "timer": null,
            "timeMode": )" +
               std::string(mode) + "}";
    };
    const std::string policy = R"({"httpMethod": "PUT", "uploadUrl": "u", "needCallServer": true,
        "keyInfoFields": null, "headerFields": null, "formFields": null, "needExtractHeaderNames": null})";
    const std::string answer =
        R"({"status": "1", "data": {"fileKey": "k", "uploadPolicyVo": )" + policy + "}}";
    const auto refused = [&policy](const char* status, const char* fileKey) {
        return R"({"status": ")" + std::string(status) + R"(", "data": {"fileKey": ")" + fileKey +
               R"(", "uploadPolicyVo": )" + policy + "}}";
    };
    const auto input = [](const char* x, int type, int event, int code, int arg1) {
        return R"({"type": )" + std::to_string(type) + R"(, "x": )" + x + R"(, "y": -2.0, "event": )" +
               std::to_string(event) + R"(, "code": )" + std::to_string(code) + R"(, "arg1": )" +
               std::to_string(arg1) + R"(, "clipboardText": "c"})";
    };
    const std::string tap = R"({"type": 1, "x": "1.5", "y": "-2", "event": 3, "clipboardText": "c"})";
    const std::string server = R"("id": 1, "serverType": 2, "isPublic": true, "ip": "", "userName": "",
        "password": "")";

    const struct {
        const char* entity;
        std::vector<std::string> read;
        std::string written; // JSON, or the text of an exception in quotes.
    } cases[] = {
        // Another written name or type.
        {"WifiStatus",
         {R"({"wifiName": "a", "connectStatus": true})"},
         R"({"wifiName": "a", "wifiOnlineStatus": true})"},
        {"WifiStatus",
         {R"({"wifiName": "a", "wifiOnlineStatus": true})"},
         R"({"wifiName": "a", "wifiOnlineStatus": false})"},
        {"CertificateProperty",
         {"{" + base + R"(, "certInstallParamsList": [)" + certificate + "]}"},
         "{" + base + R"(, "certificateEntityList": [)" + certificate + "]}"},
        {"CertificateUnInstallProperty",
         {"{" + base + R"(, "certUninstallParamsList": [)" + certificate + "]}"},
         "{" + base + R"(, "certificateEntityList": [)" + certificate + "]}"},
        {"CertificateUnInstallProperty",
         {"{" + base + R"(, "certInstallParamsList": [)" + certificate + "]}"},
         "{" + base + R"(, "certificateEntityList": null})"},
        {"LockByButtonProperty", {"{" + base + R"(, "turnOn": 2})"}, "{" + base + R"(, "turnOn": true})"},
        {"LockByButtonProperty", {"{" + base + R"(, "turnOn": 0})"}, "{" + base + R"(, "turnOn": false})"},
        {"SyncTimerInfo",
         {"{" + base + R"(, "id": -1, "jobStatus": true})"},
         "{" + base + R"(, "id": 18446744073709551615, "jobStatus": true})"},
        {"SyncTimerInfo", {R"({"id": 18446744073709551615})"}, R"("logic error")"},
        {"DeviceCustomerChannelInfo",
         {R"({"customerChannel": "c", "os": true, "product": "p"})"},
         R"({"customerChannel": "c", "os": "\u0001", "product": "p"})"},
        {"DeviceCustomerChannelInfo", {"{}"}, R"({"customerChannel": "", "os": "\u0000", "product": ""})"},

        // Keys that must be there, and keys that are not sent back.
        {"AppInfoParams",
         {"{" + file + R"(, "md5": "", "url": "", "appName": "a", "silentParams": "/S"})"},
         "{" + file + R"(, "md5": "", "url": ""})"},
        {"AppInfoParams", {"{" + file + R"(, "md5": "m"})"}, R"("logic error")"},
        {"AppInfoParams", {"{" + file + R"(, "md5": 5, "url": "u"})"}, R"("logic error")"},
        {"AppManageDataRequest",
         {"{" + base + R"(, "autoLaunching": true, "appInfoParams": {)" + file +
          R"(, "md5": "m", "url": "u", "appName": "a"}})"},
         "{" + base + R"(, "autoLaunching": true, "appInfoParams": {)" + file +
             R"(, "md5": "m", "url": "u"}})"},
        {"AppManageDataRequest", {"{" + base + "}"}, R"("logic error")"},

        // Commands by type only: the command's own keys are neither read nor written.
        {"WifiAllowListEntity", {"{" + base + R"(, "ssidname": "s"})"}, R"({"ssidname": "s"})"},
        {"DeviceLocationInfo",
         {"{" + base + R"(, "latitude": 1.5, "longitude": -2.5, "ip": "i"})"},
         R"({"latitude": 1.5, "longitude": -2.5, "ip": "i"})"},
        {"DeviceLocationWifiInfo",
         {"{" + base + R"(, "signalStrength": -40.5, "macAddress": "m"})"},
         R"({"signalStrength": -40.5, "macAddress": "m"})"},
        {"ClearCacheInfoParams",
         {"{" + base + R"(, "value": "v", "rubbishType": 3})"},
         R"({"value": "v", "rubbishType": 3})"},

        // A schedule is read as an object and written as an array in ascending order; no task gets lost.
        {"DevicePowerEntity",
         {"{" + base + R"(, "versionId": "v", "taskMap": {"a": )" + timer("2") + R"(, "b": )" + timer("-1") +
          R"(, "c": )" + timer("2") + "}}"},
         "{" + base + R"(, "versionId": "v", "taskMap": [)" + timer("-1") + "," + timer("2") + "," +
             timer("2") + "]}"},
        {"DevicePowerEntity",
         {R"({"taskMap": {"a": )" + timer("1") + "}}", "{" + base + R"(, "taskMap": {}})"},
         "{" + base + R"(, "versionId": "", "taskMap": null})"},
        {"DevicePowerEntity", {R"({"taskMap": [)" + timer("1") + "]}"}, R"("logic error")"},

        // An upload policy is kept when an answer brings none.
        {"NubraUploadPolicyResponse", {answer, R"({"status": "2"})"}, refused("2", "k")},
        {"NubraUploadPolicyResponse", {answer, R"({"status": "3", "data": null})"}, refused("3", "k")},
        {"NubraUploadPolicyResponse", {answer, R"({"status": "4", "data": "x"})"}, refused("4", "k")},
        {"NubraUploadPolicyResponse",
         {answer, R"({"data": {"fileKey": "n", "uploadPolicyVo": []}})"},
         refused("", "n")},

        // Numbers as text.
        {"IceServerInfo", {"{" + server + R"(, "port": 3478})"}, "{" + server + R"(, "port": "3478"})"},
        {"IceServerInfo", {"{" + server + R"(, "port": " +21 udp"})"}, "{" + server + R"(, "port": "21"})"},
        {"IceServerInfo", {R"({"port": "udp"})"}, R"("invalid stoi argument")"},
        {"IceServerInfo", {"{}"}, R"("invalid stoi argument")"},
        {"IceServerInfo", {R"({"port": "2147483648"})"}, R"("stoi argument out of range")"},

        // Remote input: what each event leaves as it was.
        {"ScreenControlDataRequest", {tap}, input("1.5", 1, 3, 0, 0)},
        {"ScreenControlDataRequest",
         {tap, R"({"type": 5, "code": 65, "arg1": 9, "event": null, "clipboardText": "c"})"},
         input("1.5", 5, 3, 65, 0)},
        {"ScreenControlDataRequest",
         {tap, R"({"type": 8, "x": "", "code": 65, "arg1": 9, "event": 4, "clipboardText": "c"})"},
         input("1.5", 8, 4, 0, 9)},
        {"ScreenControlDataRequest",
         {tap, R"({"x": 7.25, "clipboardText": "c"})"},
         input("7.25", 0, 3, 0, 0)},
        {"ScreenControlDataRequest",
         {tap, R"({"type": 1, "x": "inf", "clipboardText": "c"})"},
         input("null", 1, 3, 0, 0)},
        {"ScreenControlDataRequest", {R"({"x": "left"})"}, R"("invalid stod argument")"},
        {"ScreenControlDataRequest", {R"({"x": "+-1"})"}, R"("invalid stod argument")"},
        {"ScreenControlDataRequest", {R"({"y": "1e999"})"}, R"("stod argument out of range")"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.entity);
        EXPECT_EQ(Outcome(FindEntityCase(row.entity), row.read), Parse(row.written)) << row.read.back();
    }
}

TEST(EntityBodiesTest, ReadingOverwritesEveryFieldItReads) {
    const struct {
        const char* entity;
        std::vector<std::string> read;
        const char* key;
        Json::Value written;
    } cases[] = {
        {"BrightnessProperty", {}, "value", 100},
        {"BrightnessProperty", {"{}"}, "value", 0},
        {"VolumeProperty", {}, "value", 100},
        {"HourFormatSettingProperty", {}, "mode", -1},
        {"DateAndTimeSettingProperty", {}, "mode", -1},
        {"DateAndTimeSettingProperty", {"null"}, "mode", 0},
        {"SettingsParams", {R"({"operationId": 5})", "{}"}, "operationId", 0},
        {"PermissionInfo",
         {R"({"keyList": ["a", "b"]})", R"({"keyList": ["c"]})"},
         "keyList",
         Parse(R"(["c"])")},
        {"PermissionInfo", {R"({"keyList": ["a", "b"]})", "{}"}, "keyList", Json::Value()},
        {"PermissionInfo", {R"({"keyList": ["a"]})", R"({"keyList": null})"}, "keyList", Json::Value()},
        {"PermissionInfo", {R"({"keyList": ["a"]})", R"({"keyList": []})"}, "keyList", Json::Value()},
        // A list with null in it keeps the place.
        {"PermissionInfo", {R"({"keyList": ["a", null, 5]})"}, "keyList", Parse(R"(["a", "", "5"])")},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.entity);
        EXPECT_EQ(Outcome(FindEntityCase(row.entity), row.read)[row.key], row.written);
    }
}

TEST(EntityBodiesTest, TextThatDoesNotParseLeavesTheEntityUnchanged) {
    const std::string deep(5'000'000, '[');
    std::string deepObjects;
    for (int i = 0; i < 200'000; ++i)
        deepObjects += R"({"status":)";
    const struct {
        std::string text;
        int status;
    } cases[] = {
        {"", 7},
        {"  \n", 7},
        {"status", 7},
        {R"({"status": 5)", 7},
        {R"({"status": 5, "x": })", 7},
        {R"({"status": 1e999})", 7},
        {R"({"status": 5, "x": "\ud800"})", 7},
        {deep, 7},
        {deep + std::string(deep.size(), ']'), 7},
        {deepObjects, 7},
        {R"({"status": 5, "x": )" + std::string(1001, '[') + std::string(1001, ']') + "}", 7},
        {R"({"status": 5, "x": )" + std::string(990, '[') + std::string(990, ']') + "}", 5},
        {R"({"status": 5, "x": ")" + std::string(20'000'000, 'a') + R"("})", 5},
        {"\xEF\xBB\xBF // said by hand\n{\"status\": 5,}", 5},
        {"null", 0},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.text.substr(0, 40));
        IotStatusEntity entity;
        entity.status = 7;
        entity.ReadFromString(row.text);
        EXPECT_EQ(entity.status, row.status);
    }
}

TEST(EntityBodiesTest, IncompatibleTypesThrowTheLibrarysLogicError) {
    const struct {
        const char* entity;
        const char* body;
    } cases[] = {
        {"IotStatusEntity", "[]"},
        {"IotStatusEntity", "5"},
        {"IotStatusEntity", R"("text")"},
        {"IotStatusEntity", R"({"status": {}})"},
        {"IotStatusEntity", R"({"status": "5"})"},
        {"IotStatusEntity", R"({"status": 2147483648})"},
        {"ErrorInfo", R"({"code": []})"},
        {"ErrorInfo", R"({"code": {"a": 1}})"},
        {"WolServerProperty", R"({"change": "true"})"},
        {"AppInfo", R"({"appSize": 9.3e18})"},
        // The first number past the end, which the library itself lets through to an undefined cast.
        {"AppInfo", R"({"appSize": 9223372036854775808.0})"},
        {"FileInfoParams", R"({"fileId": 18446744073709551616.0})"},
        {"FileInfoParams", R"({"fileId": -1})"},
        {"DeviceLocationInfo", R"({"latitude": "north"})"},
        {"PermissionInfo", R"({"keyList": {"a": "b"}})"},
        {"BlockListProperty", R"({"blocklistEntityList": ["address"]})"},
        {"FileDataRequest", R"({"fileInfoParams": "file"})"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(Outcome(FindEntityCase(row.entity), {row.body}), "logic error") << row.entity << row.body;
}

TEST(EntityBodiesTest, AFailedReadKeepsTheListItWouldHaveReplaced) {
    BlockListProperty list;
    list.ReadFromString(R"({"blocklistEntityList": [{"url": "a"}]})");
    EXPECT_THROW(list.ReadFromString(R"({"blockType": 3, "blocklistEntityList": [{"url": "b"}, 5]})"),
                 Json::LogicError);
    EXPECT_EQ(list.blockType, 3);
    ASSERT_EQ(list.blocklistEntityList.size(), 1u);
    EXPECT_EQ(list.blocklistEntityList.front().url, "a");
}

TEST(EntityBodiesTest, EntitiesAreValues) {
    static_assert(!std::has_virtual_destructor_v<RyxEntity>);
    static_assert(std::is_nothrow_move_constructible_v<WifiInfoParams>, "lists would copy when they grow");

    WifiInfoParams original;
    original.operationId = 4;
    original.ssidName = std::string(100, 's');
    original.caCert.certId = 9;
    const std::string text = original.WriteToString();
    WifiInfoParams copy = original;
    WifiInfoParams moved = std::move(original);
    EXPECT_EQ(copy.WriteToString(), text);
    EXPECT_EQ(moved.WriteToString(), text);
    moved.ssidName = "other";
    copy = std::move(moved);
    EXPECT_EQ(copy.ssidName, "other");
}
