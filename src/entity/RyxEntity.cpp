#include "entity/RyxEntity.h"

#include <memory>

// Reader and writer settings are the library's defaults. They are built once, because that costs more than
// parsing or writing a small body; reading them is thread safe.

namespace {

bool Parse(const std::string& text, Json::Value& root) {
    static const Json::CharReaderBuilder builder;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    std::string errors;
    try {
        return reader->parse(text.data(), text.data() + text.size(), &root, &errors) && errors.empty();
    } catch (const Json::Exception&) {
        // Nesting beyond the parser's stack limit is thrown, not returned.
        return false;
    }
}

/// The text of value.toStyledString().
std::string StyledText(const Json::Value& value) {
    static const Json::StreamWriterBuilder builder;
    return Json::writeString(builder, value) + '\n';
}

} // namespace

std::string RyxEntity::WriteToString() const {
    Json::Value out;
    WriteToJson(out);
    return StyledText(out);
}

void RyxEntity::ReadFromString(const std::string& text) {
    Json::Value root;
    if (Parse(text, root))
        ReadFromJson(root);
}
