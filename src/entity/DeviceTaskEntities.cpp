#include "entity/DeviceTaskEntities.h"

#include <utility>

void DevicePowerEntity::ReadTasks(const Json::Value& object,
                                  std::multimap<std::int32_t, TimerParams>& tasks) {
    std::multimap<std::int32_t, TimerParams> fresh;
    for (const std::string& name : object.getMemberNames()) {
        TimerParams task;
        task.ReadFromJson(object[name]);
        fresh.emplace(task.timeMode, task);
    }
    tasks = std::move(fresh);
}

Json::Value DevicePowerEntity::WriteTasks(const std::multimap<std::int32_t, TimerParams>& tasks) {
    Json::Value list;
    for (const auto& task : tasks)
        list.append(entity::WriteValue(task.second));
    return list;
}

void ScreenControlDataRequest::ReadUnlessEmpty(const Json::Value& value, std::int32_t& field) {
    if (!value.empty())
        entity::ReadValue(value, field);
}
