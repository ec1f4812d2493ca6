#include "EntityCatalogue.h"

#include "entity/AppEntities.h"
#include "entity/EnrollEntities.h"
#include "entity/FileEntities.h"
#include "entity/RemoteEntities.h"
#include "entity/SettingsEntities.h"

#include <cstdint>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace {

template <class Entity>
std::shared_ptr<RyxEntity> Make() {
    struct Owner { // Entities have no virtual destructor and die by their exact type.
        Entity entity;
    };
    const auto owner = std::make_shared<Owner>();
    return {owner, &owner->entity};
}

const std::map<std::string, std::shared_ptr<RyxEntity> (*)()> makers = {
#define ENTITY(Type) {#Type, Make<Type>},
#include "EntityTypes.inc" // The names in keys.txt.
#undef ENTITY
};

std::ifstream Open(const std::string& path) {
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    return file;
}

BodyKey ReadKey(std::string word) {
    BodyKey key;
    key.isRead = word.front() != '>';
    key.isWritten = word.front() != '<';
    if (!key.isRead || !key.isWritten)
        word.erase(0, 1);
    if (const std::size_t sign = word.find('='); sign != std::string::npos) {
        std::istringstream(word.substr(sign + 1)) >> key.initial;
        word.erase(sign);
    }
    if (const std::size_t colon = word.find(':'); colon != std::string::npos) {
        key.type = word.substr(colon + 1);
        word.erase(colon);
    }
    key.name = word;
    return key;
}

std::vector<BodyEntity> ReadEntities() {
    std::ifstream file = Open(RYX_ENTITY_SAMPLES "/keys.txt");
    std::vector<BodyEntity> entities;
    std::string family;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#')
            continue;
        if (line.front() == '[') {
            family = line.substr(1, line.find(']') - 1);
            continue;
        }
        std::istringstream words(line);
        std::string word;
        if (line.front() != ' ') {
            words >> word;
            entities.push_back({word, family, {}, makers.at(word)});
        }
        while (words >> word) {
            if (word == "+command")
                entities.back().keys = entities.front().keys;
            else
                entities.back().keys.push_back(ReadKey(word));
        }
    }
    return entities;
}

std::string Inner(const std::string& type) {
    return type.substr(1, type.size() - 2);
}

Json::Value DefaultValue(const std::string& type) {
    static const std::map<std::string, Json::Value> plain = {
        {"", ""},        {"int", 0},      {"int64", 0},    {"uint64", 0},
        {"bool", false}, {"double", 0.0}, {"numeral", "0"}};
    if (const auto found = plain.find(type); found != plain.end())
        return found->second;
    return type.front() == '[' ? Json::Value() : WrittenBody(FindEntity(type), Json::Value());
}

Json::Value WrittenValue(const std::string& type, const Json::Value& value) {
    if (type.empty() || value.isNull())
        return value;
    if (value.isObject())
        return WrittenBody(FindEntity(type), value);
    if (!value.isArray())
        return value;
    Json::Value list;
    for (const Json::Value& item : value)
        list.append(WrittenValue(Inner(type), item));
    return list;
}

} // namespace

const std::vector<BodyEntity>& Entities() {
    static const std::vector<BodyEntity> entities = ReadEntities();
    return entities;
}

const BodyEntity& FindEntity(const std::string& name) {
    for (const BodyEntity& entity : Entities()) {
        if (entity.name == name)
            return entity;
    }
    throw std::runtime_error("keys.txt lists no " + name);
}

const Json::Value& Samples() {
    static const Json::Value samples = ReadJson(RYX_ENTITY_SAMPLES "/samples.json");
    return samples;
}

const Json::Value& FindSample(const std::string& entity) {
    for (const Json::Value& sample : Samples()) {
        if (sample["entity"] == entity)
            return sample["body"];
    }
    throw std::runtime_error("samples.json has no " + entity);
}

Json::Value ReadJson(const std::string& path) {
    std::ifstream file = Open(path);
    Json::Value root;
    file >> root;
    return root;
}

std::string Rewrite(const BodyEntity& entity, const std::string& body) {
    const std::shared_ptr<RyxEntity> value = entity.make();
    value->ReadFromString(body);
    return value->WriteToString();
}

Json::Value WrittenBody(const BodyEntity& entity, const Json::Value& told) {
    Json::Value body;
    for (const BodyKey& key : entity.keys) {
        if (!key.isWritten)
            continue;
        if (told.isMember(key.name))
            body[key.name] = WrittenValue(key.type, told[key.name]);
        else
            body[key.name] = key.initial.isNull() ? DefaultValue(key.type) : key.initial;
    }
    for (const std::string& name : told.getMemberNames()) {
        if (!body.isMember(name))
            throw std::runtime_error(entity.name + " writes no " + name);
    }
    return body;
}

Json::Value FilledBody::Body(const BodyEntity& entity) {
    Json::Value body;
    for (const BodyKey& key : entity.keys) {
        m_isSymmetric = m_isSymmetric && key.isRead && key.isWritten;
        if (key.isRead)
            body[key.name] = Value(key.type);
    }
    return body;
}

Json::Value FilledBody::Value(const std::string& type) {
    const std::int64_t number = ++m_count;
    if (type.empty())
        return "text " + std::to_string(number) + " \"ä漢😀\" \\ \n\t\x01" + '\0';
    if (type == "int")
        return static_cast<int>(number % 2 == 0 ? INT32_MIN + number : INT32_MAX - number);
    if (type == "int64")
        return Json::Int64(INT64_MAX - number);
    if (type == "uint64")
        return Json::UInt64(UINT64_MAX - static_cast<std::uint64_t>(number));
    if (type == "double")
        return static_cast<double>(number) + 0.1;
    if (type == "numeral")
        return std::to_string(number);
    if (type == "bool")
        return m_flagCount++ == m_trueFlag;
    if (type.front() != '[' && type.front() != '{')
        return Body(FindEntity(type));
    Json::Value items;
    for (int i = 0; i < 3; ++i) {
        if (type.front() == '[')
            items.append(Value(Inner(type)));
        else
            items[std::to_string(i)] = Value(Inner(type));
    }
    return items;
}
