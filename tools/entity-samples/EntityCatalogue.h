#pragma once

#include "entity/RyxEntity.h"

#include <json/json.h>

#include <memory>
#include <string>
#include <vector>

// The one catalogue of entities and sample bodies, for tests, fuzzing, benchmarks and the page of bodies. It
// is made of keys.txt and samples.json; all throw std::runtime_error when one of them is missing or
// contradicts itself.

/// One key of a body, as keys.txt lists it.
struct BodyKey {
    std::string name;
    std::string type;    ///< As keys.txt has it; empty for a text.
    Json::Value initial; ///< The default, or null for the type's zero.
    bool isRead = true;
    bool isWritten = true;
};

/// One entity, as keys.txt lists it.
struct BodyEntity {
    std::string name;
    std::string family;
    std::vector<BodyKey> keys;
    std::shared_ptr<RyxEntity> (*make)(); ///< A new entity of this type.
};

/// Every entity, in the order of keys.txt.
const std::vector<BodyEntity>& Entities();
const BodyEntity& FindEntity(const std::string& name);

/// Every sample: an object of
///   key, direction  the pipe's key and "to" or "from" the service; absent when the body is for measuring
///   web, direction  the same of a question to the web service
///   only entity, body    the entity and what is told of its body; for plain text, instead of the entity,
///   text            what the text is; for other JSON, both in one,
///   json            the body. Without all of them, the message has no body.
///   when            when, or with what, it is sent; absent when it goes without saying
const Json::Value& Samples();
/// The body of the first sample of that entity.
const Json::Value& FindSample(const std::string& entity);

Json::Value ReadJson(const std::string& path);

/// What a new entity that has read \p body writes. Throws what reading throws.
std::string Rewrite(const BodyEntity& entity, const std::string& body);

/// The body that an entity writes when it holds what is \p told and defaults elsewhere, also in what it
/// nests.
Json::Value WrittenBody(const BodyEntity& entity, const Json::Value& told);

/// Makes a body that fills every key that is read, each with another value. Flags are false but for one, so
/// that two that are swapped show.
class FilledBody {
public:
    explicit FilledBody(int trueFlag = 0) : m_trueFlag(trueFlag) {}

    Json::Value Body(const BodyEntity& entity);

    int FlagCount() const { return m_flagCount; }
    /// False when the body, or what it nests, has a key that is not written as it is read.
    bool IsSymmetric() const { return m_isSymmetric; }

private:
    Json::Value Value(const std::string& type);

    int m_trueFlag;
    int m_flagCount = 0;
    int m_count = 0;
    bool m_isSymmetric = true;
};
