#include "entity/EntityKeys.h"

#include "entity/RyxEntity.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <stdexcept>

namespace entity {
namespace {

std::from_chars_result Convert(const char* begin, const char* end, std::int32_t& number) {
    return std::from_chars(begin, end, number);
}

/// Whether the text, which a null ends, begins with a hexadecimal number.
bool IsHexadecimal(const char* text) {
    if (text[0] != '0' || (text[1] != 'x' && text[1] != 'X'))
        return false;
    const char digit = text[2] == '.' ? text[3] : text[2];
    return std::isxdigit(static_cast<unsigned char>(digit)) != 0;
}

std::from_chars_result Convert(const char* begin, const char* end, double& number) {
    const bool isNegative = *begin == '-';
    std::from_chars_result result{};
    if (IsHexadecimal(begin + isNegative)) {
        result = std::from_chars(begin + isNegative + 2, end, number, std::chars_format::hex);
        number = isNegative ? -number : number;
    } else {
        result = std::from_chars(begin, end, number);
    }
    if (result.ec == std::errc() && std::fpclassify(number) == FP_SUBNORMAL)
        result.ec = std::errc::result_out_of_range;
    return result;
}

/// Reads as std::stoi and std::stod do, but takes no notice of the user's locale.
template <class Number>
Number FromText(const std::string& text, const std::string& function) {
    const char* begin = text.c_str() + std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size());
    if (begin[0] == '+' && begin[1] != '-')
        ++begin;

    Number number{};
    const std::errc error = Convert(begin, text.c_str() + text.size(), number).ec;
    if (error == std::errc::invalid_argument)
        throw std::invalid_argument("invalid " + function + " argument");
    if (error == std::errc::result_out_of_range)
        throw std::out_of_range(function + " argument out of range");
    return number;
}

/// jsoncpp lets the first number past the end through, and casting it is undefined.
void CheckBelow(const Json::Value& value, double limit, const char* message) {
    if (value.type() == Json::realValue && value.asDouble() >= limit)
        throw Json::LogicError(message);
}

} // namespace

void ReadValue(const Json::Value& value, std::string& field) {
    field = value.asString();
}
void ReadValue(const Json::Value& value, std::int32_t& field) {
    field = value.asInt();
}
void ReadValue(const Json::Value& value, std::int64_t& field) {
    CheckBelow(value, 9223372036854775808.0, "double out of Int64 range");
    field = value.asInt64();
}
void ReadValue(const Json::Value& value, std::uint64_t& field) {
    CheckBelow(value, 18446744073709551616.0, "double out of UInt64 range");
    field = value.asUInt64();
}
void ReadValue(const Json::Value& value, bool& field) {
    field = value.asBool();
}
void ReadValue(const Json::Value& value, double& field) {
    field = value.asDouble();
}
void ReadValue(const Json::Value& value, RyxEntity& field) {
    field.ReadFromJson(value);
}

Json::Value WriteValue(const std::string& field) {
    return Json::Value(field);
}
Json::Value WriteValue(std::int32_t field) {
    return Json::Value(field);
}
Json::Value WriteValue(std::int64_t field) {
    return Json::Value(Json::Int64(field));
}
Json::Value WriteValue(std::uint64_t field) {
    return Json::Value(Json::UInt64(field));
}
Json::Value WriteValue(bool field) {
    return Json::Value(field);
}
Json::Value WriteValue(double field) {
    // jsoncpp writes an infinity as a number that no parser takes back, which would cost the whole body.
    return std::isfinite(field) ? Json::Value(field) : Json::Value();
}
Json::Value WriteValue(const RyxEntity& field) {
    Json::Value out;
    field.WriteToJson(out);
    return out;
}

void ReadRequiredText(const Json::Value& value, std::string& field) {
    field = value.asCString();
}

void ReadIfObject(const Json::Value& value, RyxEntity& field) {
    if (!value.isNull() && value.isObject())
        field.ReadFromJson(value);
}

void ReadIntText(const Json::Value& value, std::int32_t& field) {
    field = FromText<std::int32_t>(value.asString(), "stoi");
}

void ReadDoubleTextUnlessEmpty(const Json::Value& value, double& field) {
    const std::string text = value.asString();
    if (!text.empty())
        field = FromText<double>(text, "stod");
}

} // namespace entity
