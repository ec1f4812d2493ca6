#pragma once

#include <QByteArray>
#include <json/json.h>
#include <optional>

/// The JSON object that `text` is; nothing when it is none.
std::optional<Json::Value> ReadObject(const QByteArray& text);
