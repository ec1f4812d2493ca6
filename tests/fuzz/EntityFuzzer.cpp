// Reads arbitrary bytes into the entities of one family, RYX_FUZZ_FAMILY. The first byte picks the entity,
// the rest is the body.

#include "EntityCatalogue.h"
#include "entity/JsonText.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

std::vector<BodyEntity> FamilyEntities() {
    std::vector<BodyEntity> family;
    for (const BodyEntity& entity : Entities()) {
        if (entity.family == RYX_FUZZ_FAMILY)
            family.push_back(entity);
    }
    return family;
}

/// What a new entity that has read the body writes, or nothing when the body is of the wrong types.
std::optional<std::string> TryRewrite(const BodyEntity& entity, const std::string& body) {
    try {
        return Rewrite(entity, body);
    } catch (const Json::LogicError&) {
    } catch (const std::invalid_argument&) {
    } catch (const std::out_of_range&) {
    }
    return std::nullopt;
}

void Demand(bool holds, const char* what, const BodyEntity& entity, const std::string& text) {
    if (holds)
        return;
    std::cerr << entity.name << ": " << what << '\n' << text << '\n';
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    static const std::vector<BodyEntity> entities = FamilyEntities();
    const BodyEntity& entity = entities[data[0] % entities.size()];
    const std::string body(reinterpret_cast<const char*>(data) + 1, size - 1);

    const std::optional<std::string> written = TryRewrite(entity, body);
    if (!ParseJson(body)) {
        Demand(written == entity.make()->WriteToString(), "a body that does not parse changed it", entity,
               body);
        return 0;
    }
    if (!written)
        return 0;
    Demand(ParseJson(*written).has_value(), "wrote what does not parse", entity, *written);

    const std::optional<std::string> again = TryRewrite(entity, *written);
    if (!again)
        return 0;
    const bool isSymmetric = std::all_of(entity.keys.begin(), entity.keys.end(),
                                         [](const BodyKey& key) { return key.isRead && key.isWritten; });
    Demand(!isSymmetric || again == written, "lost something", entity, *again);
    // What an asymmetric entity loses, it loses the first time.
    Demand(TryRewrite(entity, *again) == again, "does not settle", entity, *again);
    return 0;
}
