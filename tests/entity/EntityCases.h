#pragma once

#include "tests/entity/EntityFields.h"

#include <string>
#include <utility>
#include <vector>

/// One entity under test, with its wire keys as the service's interface lists them.
struct EntityCase {
    const char* name;
    /// Keys as "name:type", in which "<" marks a key that is only read and ">" one that is only written.
    /// A type is a plain one, the name of an entity, or either in brackets for a list; "port" is an int
    /// as decimal text. "+command" stands for the keys of OperationCommandRequest.
    const char* keys;

    /// The text of a default entity.
    std::string (*writeDefault)();
    /// The text of an entity whose every field is filled.
    std::string (*writeFilled)();
    /// The text of an entity that has read \p bodies one after the other.
    std::string (*rewrite)(const std::vector<std::string>& bodies);
    /// The fields of a filled entity, before and after its text was read into a fresh one.
    std::pair<std::string, std::string> (*roundTrip)();
};

/// The entities of one family of bodies.
struct EntityFamily {
    std::string name;
    const std::vector<EntityCase>& entities;
};

const std::vector<EntityFamily>& EntityFamilies();

/// The case of that name. The test program ends if there is none.
const EntityCase& FindEntityCase(const std::string& name);
