#include "entity/JsonText.h"

#include <memory>

std::optional<Json::Value> ParseJson(std::string_view text, std::string* why) {
    // The library's default settings. Building them costs more than parsing a small text; reading them is
    // thread safe.
    static const Json::CharReaderBuilder builder;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value value;
    std::string errors;
    try {
        if (reader->parse(text.data(), text.data() + text.size(), &value, &errors) && errors.empty())
            return value;
    } catch (const Json::Exception& exception) { // nesting beyond the parser's limit is thrown, not returned
        errors = exception.what();
    }
    if (why)
        *why = errors;
    return std::nullopt;
}

std::optional<Json::Value> ParseJsonObject(std::string_view text, std::string* why) {
    std::optional<Json::Value> value = ParseJson(text, why);
    if (!value || value->isObject())
        return value;
    if (why)
        *why = "no JSON object";
    return std::nullopt;
}
