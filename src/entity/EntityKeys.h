#pragma once

#include <json/json.h>

#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <utility>
#include <vector>

struct RyxEntity;

/// The two sides of an entity's key table, and the conversions between fields and JSON values.
///
/// A field bears the name of its key. An entity whose keys are all read and written alike lists them:
///
///     RYX_KEYS(name, tags);
///
/// Any other has a table: a generic lambda over the entity and one of the sides below, a line for each key:
///
///     RYX_KEY(name);                 // read and written
///     key.Read("appName", ...);      // read only
///     key.Write("turnOn", ...);      // written only
///
/// Keys are read in this order; a value of the wrong type ends the reading there. Written text is sorted by
/// name.
#define RYX_KEY(field) key(#field, self.field)

#define RYX_KEYS(...)                                                                                        \
    static constexpr entity::NameList<sizeof(#__VA_ARGS__)> KeyNames{#__VA_ARGS__};                          \
    template <class Side>                                                                                    \
    void Fold(const Side& key) {                                                                             \
        entity::FoldKeys(key, KeyNames.text, __VA_ARGS__);                                                   \
    }                                                                                                        \
    template <class Side>                                                                                    \
    void Fold(const Side& key) const {                                                                       \
        entity::FoldKeys(key, KeyNames.text, __VA_ARGS__);                                                   \
    }                                                                                                        \
    static constexpr auto Keys = [](auto& self, const auto& key) { self.Fold(key); }

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

/// For keys of which it counts whether they are there.
template <class Value>
void ReadValue(const Json::Value& value, std::optional<Value>& field) {
    field.reset();
    if (!value.isNull())
        ReadValue(value, field.emplace());
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

template <class Value>
Json::Value WriteValue(const std::optional<Value>& field) {
    return field ? WriteValue(*field) : Json::Value();
}

/// Fills a text from a value that must be there as a JSON string; anything else throws Json::LogicError.
void ReadRequiredText(const Json::Value& value, std::string& field);

/// Fills the nested entity when the value is an object and keeps what it holds otherwise.
void ReadIfObject(const Json::Value& value, RyxEntity& field);

/// Fills a number from text as std::stoi reads it. Throws std::invalid_argument("invalid stoi argument") when
/// the text does not begin with a number and std::out_of_range("stoi argument out of range") when it is too
/// large.
void ReadIntText(const Json::Value& value, std::int32_t& field);

/// As ReadIntText, but as std::stod reads it and with "stod" in the messages: hexadecimal, infinite, NaN, and
/// out of range also when too small for full precision. The decimal sign is the point, whatever the user's
/// locale. An empty text keeps what the field holds.
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

/// The names of a list "a, b" one after the other, each ended by a null.
template <std::size_t Size>
struct NameList {
    constexpr explicit NameList(const char (&list)[Size]) {
        char* end = text;
        for (const char sign : list) {
            if (sign != ' ')
                *end++ = sign == ',' ? '\0' : sign;
        }
    }

    char text[Size] = {};
};

/// Runs one side over \p fields, whose names follow one another as in a NameList.
template <class Side, class... Fields>
void FoldKeys(const Side& key, const char* names, Fields&... fields) {
    const auto next = [&names] { return std::exchange(names, names + std::strlen(names) + 1); };
    (key(next(), fields), ...);
}

} // namespace entity
