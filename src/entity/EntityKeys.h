#pragma once

#include <json/json.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

struct RyxEntity;

/// The two sides of an entity's key table, and the conversions between fields and JSON values.
///
/// A table is a generic lambda over the entity and one of the sides below; each line is one key:
///
///     key("name", self.name);        // read and written under one name
///     key.Read("appName", ...);      // read only
///     key.Write("turnOn", ...);      // written only
///
/// Lines run in order. A key that is read and written in different places, under different names or as
/// different types has one Read and one Write line.
namespace entity {

/// Each ReadValue fills a field from a JSON value: null gives the zero value, an incompatible type throws
/// Json::LogicError.
void ReadValue(const Json::Value& value, std::string& field);
void ReadValue(const Json::Value& value, std::int32_t& field);
void ReadValue(const Json::Value& value, std::int64_t& field);
void ReadValue(const Json::Value& value, std::uint64_t& field);
void ReadValue(const Json::Value& value, bool& field);
void ReadValue(const Json::Value& value, double& field);
void ReadValue(const Json::Value& value, RyxEntity& field);

/// Replaces the whole list. It stays as it was when an element throws.
template <class Item>
void ReadValue(const Json::Value& value, std::vector<Item>& field) {
    std::vector<Item> items;
    for (Json::ArrayIndex i = 0; i < value.size(); ++i)
        ReadValue(value[i], items.emplace_back());
    field = std::move(items);
}

Json::Value WriteValue(const std::string& field);
Json::Value WriteValue(std::int32_t field);
Json::Value WriteValue(std::int64_t field);
Json::Value WriteValue(std::uint64_t field);
Json::Value WriteValue(bool field);
Json::Value WriteValue(double field); ///< Infinity and NaN become null.
Json::Value WriteValue(const RyxEntity& field);

/// An empty list becomes null and not [], because the service expects it so.
template <class Item>
Json::Value WriteValue(const std::vector<Item>& field) {
    Json::Value list;
    for (const Item& item : field)
        list.append(WriteValue(item));
    return list;
}

/// Fills a text from a value that must be there as a JSON string; anything else throws Json::LogicError.
void ReadRequiredText(const Json::Value& value, std::string& field);

/// Fills the nested entity when the value is an object and keeps what it holds otherwise.
void ReadIfObject(const Json::Value& value, RyxEntity& field);

/// Fills a number from decimal text. Throws std::invalid_argument("invalid stoi argument") when the text
/// does not begin with a number and std::out_of_range("stoi argument out of range") when it is too large.
void ReadIntText(const Json::Value& value, std::int32_t& field);

/// As ReadIntText, with "stod" in the messages; an empty text keeps what the field holds.
void ReadDoubleTextUnlessEmpty(const Json::Value& value, double& field);

/// Runs a key table from a JSON value into the entity.
class KeyReader {
public:
    explicit KeyReader(const Json::Value& in) : m_in(in) {}

    template <class Field>
    void operator()(const char* key, Field& field) const {
        ReadValue(m_in[key], field);
    }
    template <class Field>
    void Read(const char* key, Field& field) const {
        ReadValue(m_in[key], field);
    }
    template <class Field, class Convert>
    void Read(const char* key, Field& field, const Convert& convert) const {
        convert(m_in[key], field);
    }
    template <class... Ignored>
    void Write(const char*, const Ignored&...) const {}

private:
    const Json::Value& m_in;
};

/// Runs a key table from the entity into a JSON value.
class KeyWriter {
public:
    explicit KeyWriter(Json::Value& out) : m_out(out) {}

    template <class Field>
    void operator()(const char* key, const Field& field) const {
        Write(key, field);
    }
    template <class... Ignored>
    void Read(const char*, const Ignored&...) const {}
    template <class Field>
    void Write(const char* key, const Field& field) const {
        m_out[Json::StaticString(key)] = WriteValue(field);
    }
    template <class Field, class Convert>
    void Write(const char* key, const Field& field, const Convert& convert) const {
        m_out[Json::StaticString(key)] = convert(field);
    }

private:
    Json::Value& m_out;
};

} // namespace entity
