#pragma once

#include <json/json.h>
#include <optional>
#include <string>
#include <string_view>

/// The value that JSON text stands for; nothing, and in `why` the reason, when it stands for none. Any
/// thread.
std::optional<Json::Value> ParseJson(std::string_view text, std::string* why = nullptr);

/// The same for text that must be an object.
std::optional<Json::Value> ParseJsonObject(std::string_view text, std::string* why = nullptr);

/// Fills the entity from an object's text, which must have this key if one is named, for what is missing
/// would read as if all were well. False, and the entity stays, when the text is not that.
template <class Entity>
bool ReadObject(Entity& entity, std::string_view text, const char* key = nullptr) {
    const auto object = ParseJsonObject(text);
    if (!object || (key && !object->isMember(key)))
        return false;
    entity.ReadFromJson(*object);
    return true;
}
