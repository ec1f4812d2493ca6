#include "platform/web/WebJson.h"

#include <memory>

std::optional<Json::Value> ReadObject(const QByteArray& text) {
    Json::Value value;
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    try {
        if (reader->parse(text.begin(), text.end(), &value, nullptr) && value.isObject())
            return value;
    } catch (const Json::Exception&) { // nesting beyond the parser's limit
    }
    return std::nullopt;
}
