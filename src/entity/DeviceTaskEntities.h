#pragma once

#include "entity/RyxEntity.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// Cache clearing, power timers, screenshots and remote input.

/// The state of one kind of cache.
/// A command by type only: its body holds nothing but its own keys.
struct ClearCacheInfoParams final
    : JsonEntity<ClearCacheInfoParams, OperationCommandRequest, BaseKeys::Neither> {
    std::string value;
    std::int32_t rubbishType = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("value", self.value);
        key("rubbishType", self.rubbishType);
    };
};

/// The progress of clearing the device's caches.
struct ClearCacheInfo final : JsonEntity<ClearCacheInfo, OperationCommandRequest> {
    std::string sessionId;
    std::int32_t statusType = 0;
    std::vector<ClearCacheInfoParams> clearDeviceCacheProcessStatusParams;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("sessionId", self.sessionId);
        key("statusType", self.statusType);
        key("clearDeviceCacheProcessStatusParams", self.clearDeviceCacheProcessStatusParams);
    };
};

/// One weekly rule: the week days and the times.
struct CommonDataTimer final : JsonEntity<CommonDataTimer> {
    std::string week;
    std::vector<std::string> time;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("week", self.week);
        key("time", self.time);
    };
};

/// One timer of the power schedule.
struct TimerParams final : JsonEntity<TimerParams, OperationCommandRequest> {
    std::int32_t timeMode = 0;
    bool jobStatus = false;
    std::vector<CommonDataTimer> timer;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("timeMode", self.timeMode);
        key("jobStatus", self.jobStatus);
        key("timer", self.timer);
    };
};

/// The state of one timer.
struct SyncTimerInfo final : JsonEntity<SyncTimerInfo, OperationCommandRequest> {
    std::int64_t id = 0;
    bool jobStatus = false;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        // The service sends the number signed and takes the same 64 bits back unsigned.
        key.Read("id", self.id);
        key.Write("id", static_cast<std::uint64_t>(self.id));
        key("jobStatus", self.jobStatus);
    };
};

/// The states of several timers.
struct SyncTimerRequest final : JsonEntity<SyncTimerRequest, OperationCommandRequest> {
    std::vector<SyncTimerInfo> timers;

    static constexpr auto Keys = [](auto& self, const auto& key) { key("timers", self.timers); };
};

/// When the device was last switched on and off, and when it will be next.
struct PowerOnTimestampInfo final : JsonEntity<PowerOnTimestampInfo> {
    std::string lastOnTime;
    std::string lastOffTime;
    std::string thisOnTime;
    std::string thisOffTime;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("lastOnTime", self.lastOnTime);
        key("lastOffTime", self.lastOffTime);
        key("thisOnTime", self.thisOnTime);
        key("thisOffTime", self.thisOffTime);
    };
};

/// The power schedule: several timers.
struct DevicePowerEntity final : JsonEntity<DevicePowerEntity, OperationCommandRequest> {
    std::string versionId;
    std::map<std::int64_t, TimerParams> taskMap; ///< In ascending order of the time mode.

    static void ReadTasks(const Json::Value& object, std::map<std::int64_t, TimerParams>& tasks);
    static Json::Value WriteTasks(const std::map<std::int64_t, TimerParams>& tasks);

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("versionId", self.versionId);
        // The service sends an object whose member names mean nothing and takes an array back.
        key.Read("taskMap", self.taskMap, ReadTasks);
        key.Write("taskMap", self.taskMap, WriteTasks);
    };
};

/// Asks for screenshots of a size in pixels, at an interval.
struct ScreenShotDataRequest final : JsonEntity<ScreenShotDataRequest, OperationCommandRequest> {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t intervalTime = 0;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("width", self.width);
        key("height", self.height);
        key("intervalTime", self.intervalTime);
    };
};

/// One screenshot, as a key of the file store.
struct ScreenShotDataResponse final : JsonEntity<ScreenShotDataResponse> {
    std::int32_t code = 0;
    std::string fileKey;
    std::string result;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("code", self.code);
        key("fileKey", self.fileKey);
        key("result", self.result);
    };
};

/// One remote input event.
struct ScreenControlDataRequest final : JsonEntity<ScreenControlDataRequest> {
    std::int32_t type = 0;
    double x = 0.0;
    double y = 0.0;
    std::int32_t event = 0;
    std::int32_t code = 0;
    std::int32_t arg1 = 0;
    std::string clipboardText;

    static constexpr std::int32_t typeWithCode = 5;
    static constexpr std::int32_t typeWithArgument = 8;

    static void ReadUnlessEmpty(const Json::Value& value, std::int32_t& field);

    static constexpr auto Keys = [](auto& self, const auto& key) {
        key("type", self.type);
        // Positions come as text, where an empty one means no move; an event without one repeats the last.
        key.Read("x", self.x, entity::ReadDoubleTextUnlessEmpty);
        key.Read("y", self.y, entity::ReadDoubleTextUnlessEmpty);
        key.Read("event", self.event, ReadUnlessEmpty);
        if (self.type == typeWithCode)
            key.Read("code", self.code);
        if (self.type == typeWithArgument)
            key.Read("arg1", self.arg1);
        key.Read("clipboardText", self.clipboardText);
        // Written whole, with positions as numbers.
        key.Write("event", self.event);
        key.Write("x", self.x);
        key.Write("y", self.y);
        key.Write("code", self.code);
        key.Write("clipboardText", self.clipboardText);
        key.Write("arg1", self.arg1);
    };
};
