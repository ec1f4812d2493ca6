#include "entity/RyxEntity.h"

#include <memory>

std::string RyxEntity::WriteToString() const {
    Json::Value out;
    WriteToJson(out);
    return out.toStyledString();
}

namespace {

bool Parse(const std::string& text, Json::Value& root) {
    // Building the default settings costs more than parsing a small body; reading them is thread safe.
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

} // namespace

void RyxEntity::ReadFromString(const std::string& text) {
    Json::Value root;
    if (Parse(text, root))
        ReadFromJson(root);
}
