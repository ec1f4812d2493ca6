#include "KeyText.h"

#include <charconv>

std::string KeyText(PipeKey key) {
    const char* name = PipeKeyName(key);
    return std::to_string(static_cast<std::int32_t>(key)) + ' ' + (name ? name : "unknown");
}

std::optional<PipeKey> ParseKey(const std::string& text) {
#define RYX_MATCH(name, number)                                                                              \
    if (text == #name)                                                                                       \
        return PipeKey::name;
    RYX_PIPE_KEYS(RYX_MATCH)
#undef RYX_MATCH

    std::int32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return static_cast<PipeKey>(number);
}
