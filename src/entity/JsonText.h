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
