// The screen lock against a foreign program of the same user.
#include "EndToEndFixture.h"

#include <algorithm>

namespace {

struct AttackCase {
    const char* command;
    bool ends; ///< the front end's process ends, and is started again by the agent service
};

std::vector<AttackCase> Attacks() {
    if (qEnvironmentVariableIsSet(Steering::Launcher))
        return {{"hide", false},
                {"hide-in-place", false},
                {"minimise", false},
                {"force-minimise", false},
                {"system-minimise", false},
                {"move", false},
                {"shrink", false},
                {"disable", false},
                {"region", false},
                {"transparent", false},
                {"untop", false},
                {"bottom", false},
                {"adopt", false},
                {"close", false},
                {"quit", false},
                {"end-session", false},
                {"raise 100", false},
                {"hot-key", false},
                {"crash", true},
                {"kill", true}};
    return {{"hide", false},   {"iconic-property", false}, {"minimise", false},     {"move", false},
            {"shrink", false}, {"region", false},          {"input-region", false}, {"transparent", false},
            {"bottom", false}, {"adopt", false},           {"close", false},        {"raise 100", false},
            {"grab", false},   {"destroy", true},          {"kill-client", true},   {"crash", true},
            {"kill", true}};
}

class LockUnderAttack : public EndToEndTest, public testing::WithParamInterface<AttackCase> {
protected:
    /// Two seconds after an attack at the latest the lock is whole, and stays so.
    bool IsWholeForGood() {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(2);
        do {
            if (WaitUntil([&] { return lock.IsWhole(); }, std::chrono::seconds(2)) &&
                !WaitUntil([&] { return !lock.IsWhole(); }, std::chrono::milliseconds(500)))
                return true;
        } while (std::chrono::steady_clock::now() < end);
        return false;
    }
};

TEST_P(LockUnderAttack, IsWholeAgainWithinTwoSecondsAndOpensWithTheDigits) {
    const auto [command, ends] = GetParam();
    ASSERT_TRUE(ends ? product.StartSupervised() : StartBoth());
    product.Tell("lock");
    ASSERT_TRUE(lock.Wait());
    const std::string printed = product.Attack(command, LockScreen::Title);
    ASSERT_NE(printed.find("done"), std::string::npos) << printed;
    if (ends) {
        const bool crashes = command == std::string("crash"); // and leaves a record before it goes
        EXPECT_TRUE(WaitUntil([&] { return product.AgentLines("client 1 disconnected") > 0; },
                              std::chrono::seconds(crashes ? 5 : 2)));
        EXPECT_TRUE(lock.Wait());
        EXPECT_TRUE(product.AgentSays("client 2 received")); // its word to lock begins anew
        EXPECT_EQ(product.LogLines("an earlier run has crashed: "), crashes);
    } else {
        EXPECT_TRUE(IsWholeForGood());
        screen->Press("k", {"Control_L", "Alt_L"});
        EXPECT_TRUE(product.FrontEnd().IsRunning());
    }
    screen->Screenshot().save(QDir::current().filePath(
        QStringLiteral("attack-%1.png").arg(QString::fromLatin1(command).section(QLatin1Char(' '), 0, 0))));
    EXPECT_EQ(product.AttackersSay("hot key"), 0);
    product.EndAttacks(); // what only holds the input back ends; the lock stays
    ASSERT_TRUE(lock.OpenPasswordBoxes());
    screen->Type("123456");
    EXPECT_TRUE(product.AgentSays("received 35 ScreenUnlock"));
    EXPECT_TRUE(lock.WaitUntilGone());
}

INSTANTIATE_TEST_SUITE_P(Attack, LockUnderAttack, testing::ValuesIn(Attacks()), [](const auto& attack) {
    std::string name = attack.param.command;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '-' || c == ' '; }, '_');
    return name;
});

} // namespace
