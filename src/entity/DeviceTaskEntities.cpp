#include "entity/DeviceTaskEntities.h"

#include <utility>

void DevicePowerEntity::ReadTasks(const Json::Value& object, std::map<std::int64_t, TimerParams>& tasks) {
    std::map<std::int64_t, TimerParams> fresh;
    std::int64_t position = 0;
    for (const std::string& name : object.getMemberNames()) {
        TimerParams task;
        task.ReadFromJson(object[name]);
        // The position keeps tasks of one mode apart.
        const std::int64_t order = task.timeMode * (std::int64_t{1} << 32) + position++;
        fresh.emplace_hint(fresh.end(), order, std::move(task));
    }
    tasks = std::move(fresh);
}

Json::Value DevicePowerEntity::WriteTasks(const std::map<std::int64_t, TimerParams>& tasks) {
    Json::Value list;
    for (const auto& task : tasks)
        list.append(entity::WriteValue(task.second));
    return list;
}

void ScreenControlDataRequest::ReadUnlessEmpty(const Json::Value& value, std::int32_t& field) {
    if (!value.empty())
        entity::ReadValue(value, field);
}
