#pragma once

#include "platform/link/PipeKey.h"

#include <optional>
#include <string>

/// The key as people read it, such as "35 ScreenUnlock"; a number that is no key gets the name "unknown".
std::string KeyText(PipeKey key);

/// The key that `text` names by number or by name; nothing when it is neither. Any number is allowed.
std::optional<PipeKey> ParseKey(const std::string& text);
