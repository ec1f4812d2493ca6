#pragma once

#include "tests/entity/EntityCases.h"

#include <gtest/gtest.h>
#include <json/json.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

inline Json::Value Parse(const std::string& text) {
    Json::Value root;
    std::string errors;
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    EXPECT_TRUE(reader->parse(text.data(), text.data() + text.size(), &root, &errors)) << text << errors;
    return root;
}

/// What comes of reading bodies one after the other and writing: the body, or the exception.
inline Json::Value Outcome(const EntityCase& entity, const std::vector<std::string>& bodies) {
    try {
        return Parse(entity.rewrite(bodies));
    } catch (const Json::LogicError&) {
        return "logic error";
    } catch (const std::invalid_argument& error) {
        return error.what();
    } catch (const std::out_of_range& error) {
        return error.what();
    }
}
