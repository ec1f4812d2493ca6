#pragma once

#include "entity/DeviceTaskEntities.h"
#include "entity/RemoteEntities.h"
#include "entity/RyxEntity.h"

#include <cstdint>
#include <map>
#include <string>
#include <type_traits>
#include <vector>

/// Hands every plain field of an entity, of its base and of what it nests to a visitor.
///
/// The visitor takes each plain field by reference, and each container before its items, so that it can
/// size it.
template <class Entity, class Visitor>
void VisitFields(Entity& entity, Visitor& visitor);

template <class Visitor>
class FieldVisit {
public:
    explicit FieldVisit(Visitor& visitor) : m_visitor(visitor) {}

    template <class Field>
    void operator()(const char*, Field& field) const {
        Visit(field);
    }
    template <class Field, class... Conversion>
    void Read(const char*, Field& field, const Conversion&...) const {
        Visit(field);
    }
    /// Fields that are read only sometimes are still written always.
    template <class Field>
    void Write(const char*, Field& field) const {
        Visit(field);
    }
    template <class... Ignored>
    void Write(const char*, const Ignored&...) const {}

private:
    template <class Field>
    void Visit(Field& field) const {
        if constexpr (std::is_base_of_v<RyxEntity, Field>)
            VisitFields(field, m_visitor);
        else
            m_visitor.Plain(field);
    }
    template <class Item>
    void Visit(std::vector<Item>& list) const {
        m_visitor.List(list);
        for (Item& item : list)
            Visit(item);
    }
    void Visit(std::map<std::int64_t, TimerParams>& tasks) const {
        m_visitor.Tasks(tasks);
        for (auto& task : tasks)
            VisitFields(task.second, m_visitor);
    }

    Visitor& m_visitor;
};

template <class Entity, class Visitor>
void VisitFields(Entity& entity, Visitor& visitor) {
    const FieldVisit<Visitor> visit(visitor);
    if constexpr (std::is_base_of_v<OperationCommandRequest, Entity> &&
                  !std::is_same_v<OperationCommandRequest, Entity>)
        OperationCommandRequest::Keys(entity, visit);
    if constexpr (std::is_base_of_v<ExternalDeviceKey, Entity> && !std::is_same_v<ExternalDeviceKey, Entity>)
        ExternalDeviceKey::Keys(entity, visit);
    Entity::Keys(entity, visit);
}

/// Gives every field a value that no other field has, near an end of its type's range.
class FieldFiller {
public:
    void Plain(std::string& field) {
        field = "text " + std::to_string(++m_count) + " \"ä漢😀\" \\ \n\t\x01";
        field += '\0';
    }
    void Plain(std::int32_t& field) {
        field = ++m_count % 2 == 0 ? INT32_MIN + m_count : INT32_MAX - m_count;
    }
    void Plain(std::int64_t& field) { field = INT64_MAX - ++m_count; }
    void Plain(std::uint64_t& field) { field = UINT64_MAX - static_cast<std::uint64_t>(++m_count); }
    void Plain(double& field) { field = 0.1 + ++m_count; }
    void Plain(bool& field) { field = true; }
    template <class Item>
    void List(std::vector<Item>& list) {
        list.resize(3);
    }
    void Tasks(std::map<std::int64_t, TimerParams>& tasks) {
        tasks[-5];
        tasks[7];
    }

private:
    std::int32_t m_count = 0;
};

/// Lists the values of all fields, one a line.
class FieldDump {
public:
    const std::string& Text() const { return m_text; }

    template <class Field>
    void Plain(const Field& field) {
        const Json::Value value = entity::WriteValue(field);
        m_text += value.toStyledString();
    }
    template <class Item>
    void List(const std::vector<Item>& list) {
        m_text += "list of " + std::to_string(list.size()) + "\n";
    }
    void Tasks(const std::map<std::int64_t, TimerParams>& tasks) {
        m_text += "tasks: " + std::to_string(tasks.size()) + "\n";
    }

private:
    std::string m_text;
};
