#include "entity/RyxEntity.h"

#include "entity/JsonText.h"

std::string RyxEntity::WriteToString() const {
    Json::Value out;
    WriteToJson(out);
    // The text of out.toStyledString(), whose settings would be built each time; see ParseJson.
    static const Json::StreamWriterBuilder builder;
    return Json::writeString(builder, out) + '\n';
}

void RyxEntity::ReadFromString(const std::string& text) {
    if (const auto root = ParseJson(text))
        ReadFromJson(*root);
}
