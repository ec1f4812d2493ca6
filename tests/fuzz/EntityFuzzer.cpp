// Reads arbitrary bytes into the entities of one family, RYX_FUZZ_FAMILY. The first byte picks the entity,
// the rest is the body.

#include "tests/entity/EntityCases.h"

#include <json/json.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>

namespace {

const std::vector<EntityCase>& Entities() {
    for (const EntityFamily& family : EntityFamilies()) {
        if (family.name == RYX_FUZZ_FAMILY)
            return family.entities;
    }
    std::abort();
}

bool Parses(const std::string& text) {
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    Json::Value root;
    std::string errors;
    try {
        return reader->parse(text.data(), text.data() + text.size(), &root, &errors) && errors.empty();
    } catch (const Json::Exception&) {
        return false;
    }
}

/// What a fresh entity that read the body writes, or nothing when the body is of the wrong types.
std::optional<std::string> Rewrite(const EntityCase& entity, const std::string& body) {
    try {
        return entity.rewrite({body});
    } catch (const Json::LogicError&) {
    } catch (const std::invalid_argument&) {
    } catch (const std::out_of_range&) {
    }
    return std::nullopt;
}

void Demand(bool holds, const char* what, const EntityCase& entity, const std::string& text) {
    if (holds)
        return;
    std::cerr << entity.name << ": " << what << '\n' << text << '\n';
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    static const std::vector<EntityCase>& entities = Entities();
    const EntityCase& entity = entities[data[0] % entities.size()];
    const std::string body(reinterpret_cast<const char*>(data) + 1, size - 1);

    const std::optional<std::string> written = Rewrite(entity, body);
    if (!Parses(body)) {
        Demand(written == entity.writeDefault(), "a body that does not parse changed it", entity, body);
        return 0;
    }
    if (!written)
        return 0;
    Demand(Parses(*written), "wrote what does not parse", entity, *written);

    const std::optional<std::string> again = Rewrite(entity, *written);
    if (!again)
        return 0;
    const bool isSymmetric = std::strpbrk(entity.keys, "<>") == nullptr;
    Demand(!isSymmetric || again == written, "lost something", entity, *again);
    // What an asymmetric entity loses, it loses the first time.
    Demand(Rewrite(entity, *again) == again, "does not settle", entity, *again);
    return 0;
}
