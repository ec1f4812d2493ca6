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
    : JsonEntity<ClearCacheInfoParams, OperationCommandRequest, BaseKeys::LeftOut> {
    std::string value;
    std::int32_t rubbishType = 0;

    RYX_KEYS(value, rubbishType);
};

/// The progress of clearing the device's caches.
struct ClearCacheInfo final : JsonEntity<ClearCacheInfo, OperationCommandRequest> {
    std::string sessionId;
    std::int32_t statusType = 0;
    std::vector<ClearCacheInfoParams> clearDeviceCacheProcessStatusParams;

    RYX_KEYS(sessionId, statusType, clearDeviceCacheProcessStatusParams);
};

/// One weekly rule: the week as text, and the times.
struct CommonDataTimer final : JsonEntity<CommonDataTimer> {
    std::string week;
    std::vector<std::string> time;

    RYX_KEYS(week, time);
};

/// One timer of the power schedule.
struct TimerParams final : JsonEntity<TimerParams, OperationCommandRequest> {
    std::int32_t timeMode = 0;
    bool jobStatus = false;
    std::vector<CommonDataTimer> timer;

    RYX_KEYS(timeMode, jobStatus, timer);
};

/// The state of one timer.
struct SyncTimerInfo final : JsonEntity<SyncTimerInfo, OperationCommandRequest> {
    std::int64_t id = 0;
    bool jobStatus = false;

    static constexpr auto Keys = [](auto& self, const auto& key) {
        // Read signed and written unsigned: the same 64 bits.
        key.Read("id", self.id);
        key.Write("id", static_cast<std::uint64_t>(self.id));
        RYX_KEY(jobStatus);
    };
};

/// The states of several timers.
struct SyncTimerRequest final : JsonEntity<SyncTimerRequest, OperationCommandRequest> {
    std::vector<SyncTimerInfo> timers;

    RYX_KEYS(timers);
};

/// The last and the current time of switching on and off, as text.
struct PowerOnTimestampInfo final : JsonEntity<PowerOnTimestampInfo> {
    std::string lastOnTime;
    std::string lastOffTime;
    std::string thisOnTime;
    std::string thisOffTime;

    RYX_KEYS(lastOnTime, lastOffTime, thisOnTime, thisOffTime);
};

/// The power schedule: several timers.
struct DevicePowerEntity final : JsonEntity<DevicePowerEntity, OperationCommandRequest> {
    std::string versionId;
    /// By time mode; several of one mode stay in the order in which they were read.
    std::multimap<std::int32_t, TimerParams> taskMap;

    static void ReadTasks(const Json::Value& object, std::multimap<std::int32_t, TimerParams>& tasks);
    static Json::Value WriteTasks(const std::multimap<std::int32_t, TimerParams>& tasks);

    static constexpr auto Keys = [](auto& self, const auto& key) {
        RYX_KEY(versionId);
        // Read as an object, whose member names are not kept, and written as an array.
        key.Read("taskMap", self.taskMap, ReadTasks);
        key.Write("taskMap", self.taskMap, WriteTasks);
    };
};

/// Asks for screenshots of a size, at an interval.
struct ScreenShotDataRequest final : JsonEntity<ScreenShotDataRequest, OperationCommandRequest> {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t intervalTime = 0;

    RYX_KEYS(width, height, intervalTime);
};

/// One screenshot, as a key of the file store.
struct ScreenShotDataResponse final : JsonEntity<ScreenShotDataResponse> {
    std::int32_t code = 0;
    std::string fileKey;
    std::string result;

    RYX_KEYS(code, fileKey, result);
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
        RYX_KEY(type);
        // Positions are text on the wire. Without one, or without an event, the field keeps what it holds.
        key.Read("x", self.x, entity::ReadDoubleTextUnlessEmpty);
        key.Read("y", self.y, entity::ReadDoubleTextUnlessEmpty);
        key.Read("event", self.event, ReadUnlessEmpty);
        if (self.type == typeWithCode)
            key.Read("code", self.code);
        if (self.type == typeWithArgument)
            key.Read("arg1", self.arg1);
        RYX_KEY(clipboardText);
        // All are written, whatever the type, positions as numbers.
        key.Write("x", self.x);
        key.Write("y", self.y);
        key.Write("event", self.event);
        key.Write("code", self.code);
        key.Write("arg1", self.arg1);
    };
};
