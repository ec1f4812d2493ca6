// Pop-ups of another program, which are closed by the service's rules: what becomes of them, and of
// everything else meanwhile.
#include "EndToEndFixture.h"
#include "PopupProgram.h"

namespace {

class PopupsEndToEndTest : public EndToEndTest, public testing::WithParamInterface<const char*> {
protected:
    bool StartWithRules() {
        program = std::make_unique<PopupProgram>(product);
        return StartBoth() && PopupProgram::TellRules(product) && product.Order("popups on");
    }
    bool IsReported(const std::string& kind, int times = 1) {
        const std::string line = "\"Pop-up that " + kind + "\", class";
        return WaitUntil([&] { return product.AgentLines(line) >= times; });
    }
    std::unique_ptr<PopupProgram> program;
};

TEST_F(PopupsEndToEndTest, MatchingOnesCloseAndAreReportedOnceAndOthersStay) {
    ASSERT_TRUE(StartWithRules());
    program->Tell("closes 100\ncloses: this one stays");
    EXPECT_TRUE(program->Says("closed", 100));
    EXPECT_TRUE(IsReported("closes", 100));

    for (const char* stop : {"popups off", "unenrol"}) {
        const int shown = program->Lines("shown"), closed = program->Lines("closed");
        ASSERT_TRUE(product.Order(stop));
        program->Tell("closes");
        ASSERT_TRUE(program->Says("shown", shown + 1)) << stop;
        ASSERT_TRUE(product.Order("popups on"));
        program->Tell("closes");
        EXPECT_TRUE(program->Says("closed", closed + 1)) << stop;
    }
    product.Tell("drop");
    ASSERT_TRUE(product.AgentSays("client 2 received 12"));
    program->Tell("closes");
    EXPECT_TRUE(IsReported("closes", 103));
    product.Agent().Kill(); // blocking goes on, and nobody hears of it
    program->Tell("closes");
    EXPECT_TRUE(program->Says("closed", 104));
    EXPECT_EQ(program->Lines("asked"), 104);
    EXPECT_EQ(product.AgentLines("pop-up closed"), 103);
    EXPECT_TRUE(screen->Find("this one stays"));
}

TEST_P(PopupsEndToEndTest, ThatHoldTheirCloserUpHoldNothingElseUp) {
    const std::string kind = GetParam();
    ASSERT_TRUE(StartWithRules());
    program->Tell(kind + "\n" + kind);
    ASSERT_TRUE(program->Says("asked"));
    EXPECT_TRUE(IsReported(kind));
    product.Tell("lock");
    EXPECT_TRUE(WaitUntil([this] { return lock.IsWhole(); }, std::chrono::seconds(2)));
    product.Tell("unlock");
    EXPECT_TRUE(lock.WaitUntilGone());

    PopupProgram other(product);
    other.Tell("closes");
    EXPECT_TRUE(other.Says("closed"));
    EXPECT_TRUE(IsReported("closes"));
}

INSTANTIATE_TEST_SUITE_P(Kind, PopupsEndToEndTest, testing::Values("asks", "refuses", "hangs"));

TEST_F(PopupsEndToEndTest, TheSystemsContractHoldsOnThisScreen) {
    if (product.HasLauncher())
        GTEST_SKIP() << "it is tested on the real screen there";
    ChildProcess tests;
    product.SetVariable("QT_QPA_PLATFORM=xcb");
    product.Start(tests, Steering::Contract, {"--gtest_filter=SystemContract.*"});
    ASSERT_TRUE(WaitUntil([&] { return tests.Result().has_value(); }));
    EXPECT_EQ(tests.Result(), 0) << tests.Output();
}

} // namespace
