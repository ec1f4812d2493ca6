#include "EntityCatalogue.h"

#include "entity/AppEntities.h"
#include "entity/DeviceTaskEntities.h"
#include "entity/IotEntities.h"
#include "entity/SettingsEntities.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

// Bodies are compared as text, which also checks that it is the library's styled text.

static_assert(!std::has_virtual_destructor_v<RyxEntity>);
static_assert(std::is_nothrow_move_constructible_v<WifiInfoParams>, "lists would copy when they grow");

namespace {

/// Why reading failed: "type", or the message of a number that is none. Empty when it did not.
std::string Failure(RyxEntity& entity, const std::string& body) {
    try {
        entity.ReadFromString(body);
    } catch (const Json::LogicError&) {
        return "type";
    } catch (const std::logic_error& error) {
        return error.what();
    }
    return "";
}

} // namespace

TEST(EntityTest, DefaultBodiesAreThoseOfTheInterface) {
    for (const BodyEntity& entity : Entities())
        EXPECT_EQ(entity.make()->WriteToString(), WrittenBody(entity, Json::Value()).toStyledString())
            << entity.name;
}

TEST(EntityTest, EveryKeyIsReadIntoAFieldOfItsOwnAndWrittenBack) {
    int symmetric = 0;
    for (const BodyEntity& entity : Entities()) {
        int flags = 1;
        for (int trueFlag = 0; trueFlag < flags; ++trueFlag) {
            FilledBody filled(trueFlag);
            const std::string body = filled.Body(entity).toStyledString();
            if (!filled.IsSymmetric())
                break; // bodies.json has these.
            EXPECT_EQ(Rewrite(entity, body), body) << entity.name;
            flags = filled.FlagCount();
            symmetric += trueFlag == 0;
        }
    }
    EXPECT_GT(symmetric, 120);
}

TEST(EntityTest, SpecialBodies) {
    const Json::Value groups = ReadJson(RYX_ENTITY_TESTS "/bodies.json");
    ASSERT_FALSE(groups.empty());
    for (const std::string& group : groups.getMemberNames()) {
        for (const Json::Value& row : groups[group]) {
            SCOPED_TRACE(group + ": " + row.toStyledString());
            const BodyEntity& entity = FindEntity(row["entity"].asString());
            const auto value = entity.make();
            std::string failure;
            for (const Json::Value& body : row["read"])
                failure = Failure(*value, body.toStyledString());
            EXPECT_EQ(failure, row["fails"].asString());
            if (row.isMember("written")) {
                EXPECT_EQ(value->WriteToString(), WrittenBody(entity, row["written"]).toStyledString());
            }
        }
    }
}

TEST(EntityTest, FieldsWhoseKeysDifferHoldWhatTheirNamesSay) {
    AppInfoParams app;
    app.ReadFromString(R"({"md5": "m", "url": "u", "appName": "a", "silentParams": "s"})");
    EXPECT_EQ(app.md5 + app.url + app.appName + app.silentParams, "muas");

    ScreenControlDataRequest input;
    input.ReadFromString(R"({"type": 5, "x": "1", "y": "2", "event": 3, "code": 4})");
    input.ReadFromString(R"({"type": 8, "arg1": 5})");
    EXPECT_EQ(std::vector<double>({input.x, input.y}), std::vector<double>({1, 2}));
    EXPECT_EQ(std::vector<int>({input.event, input.code, input.arg1}), std::vector<int>({3, 4, 5}));
}

TEST(EntityTest, TextThatDoesNotParseLeavesTheEntityUnchanged) {
    const std::string deep(5'000'000, '[');
    std::string deepObjects;
    for (int i = 0; i < 200'000; ++i)
        deepObjects += R"({"status":)";
    const std::string texts[] = {"",
                                 "  \n",
                                 "status",
                                 R"({"status": 5)",
                                 R"({"status": 5, "x": })",
                                 deep,
                                 deep + std::string(deep.size(), ']'),
                                 deepObjects};
    for (const std::string& text : texts) {
        IotStatusEntity entity;
        entity.status = 7;
        entity.ReadFromString(text);
        EXPECT_EQ(entity.status, 7) << text.substr(0, 40);
    }
}
