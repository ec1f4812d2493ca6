#pragma once

#include "entity/EntityKeys.h"

#include <json/json.h>

#include <cstdint>
#include <string>
#include <type_traits>

/// Base of every JSON body that travels on the pipe.
///
/// Entities are plain values: copied, moved and destroyed as their exact type, filled and read by one
/// thread at a time.
struct RyxEntity {
    RyxEntity() = default;
    RyxEntity(const RyxEntity&) = default;
    RyxEntity(RyxEntity&&) = default;
    RyxEntity& operator=(const RyxEntity&) = default;
    RyxEntity& operator=(RyxEntity&&) = default;

    /// The entity as styled JSON text, ready for the pipe.
    virtual std::string WriteToString() const;
    /// Writes every key of the entity into \p out, which is null or an object.
    virtual void WriteToJson(Json::Value& out) const = 0;
    /// Fills the entity from JSON text. Text that does not parse leaves it unchanged and tells nobody.
    /// Throws what ReadFromJson throws.
    virtual void ReadFromString(const std::string& text);
    /// Fills every field, absent and null keys with the zero value.
    /// Throws Json::LogicError for a value of an incompatible type; the keys before it are filled by then.
    virtual void ReadFromJson(const Json::Value& in) = 0;

protected:
    // Not virtual: nobody deletes an entity through a base. Every entity that is no base is final.
    ~RyxEntity() = default;
};

/// Whether an entity's body begins with the keys of its base.
enum class BaseKeys { Included, LeftOut };

/// Implements reading and writing of \p Self by folding over its table `Self::Keys` (see EntityKeys.h).
template <class Self, class Base = RyxEntity, BaseKeys baseKeys = BaseKeys::Included>
struct JsonEntity : Base {
    void WriteToJson(Json::Value& out) const override {
        if constexpr (hasBaseKeys)
            Base::WriteToJson(out);
        Self::Keys(static_cast<const Self&>(*this), entity::KeyWriter(out));
    }

    void ReadFromJson(const Json::Value& in) override {
        if constexpr (hasBaseKeys)
            Base::ReadFromJson(in);
        Self::Keys(static_cast<Self&>(*this), entity::KeyReader(in));
    }

private:
    static constexpr bool hasBaseKeys = !std::is_same_v<Base, RyxEntity> && baseKeys == BaseKeys::Included;
};

/// Base of every body that carries a command of the management service: which operation it belongs to.
struct OperationCommandRequest : JsonEntity<OperationCommandRequest> {
    std::int32_t operationId = 0;          ///< The operation in the service's records.
    std::int32_t operationDeviceLogId = 0; ///< This device's entry in the operation's log.

    RYX_KEYS(operationId, operationDeviceLogId);
};

/// The answer to a command: the command's two identifiers, sent back, and how it went.
struct OperationCommandResponse : JsonEntity<OperationCommandResponse> {
    std::int32_t operationId = 0;
    std::int32_t operationDeviceLogId = 0;
    std::int32_t resultCode = 0; ///< 0 when the command was carried out.

    RYX_KEYS(operationId, operationDeviceLogId, resultCode);
};
