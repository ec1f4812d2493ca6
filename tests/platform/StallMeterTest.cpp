#include "platform/application/Watchdog.h"

#include <gtest/gtest.h>
#include <vector>

TEST(StallMeter, TellsAStallOnceAndGivesUpOnlyWhileLocked) {
    using Verdict = StallMeter::Verdict;
    struct Look {
        int elapsedMs;
        bool answered;
        bool locked;
        Verdict verdict;
    };
    const std::vector<std::vector<Look>> stories{
        {{1000, true, false, Verdict::Well},
         {1000, false, false, Verdict::Well},
         {1000, true, false, Verdict::Well}},
        {{1000, false, false, Verdict::Well},
         {1000, false, false, Verdict::Stalled},
         {1000, false, false, Verdict::Well},
         {1000, true, false, Verdict::Recovered},
         {1000, true, false, Verdict::Well}},
        // A machine that slept for a day has not stalled.
        {{86400000, false, true, Verdict::Well}, {1000, true, true, Verdict::Well}},
    };
    for (const auto& story : stories) {
        StallMeter meter;
        for (const Look& look : story)
            EXPECT_EQ(meter.Look(look.elapsedMs, look.answered, look.locked), look.verdict);
    }
    for (const bool locked : {true, false}) {
        StallMeter meter;
        Verdict last = Verdict::Well;
        for (int second = 1; second <= 20; ++second)
            last = meter.Look(1000, false, locked);
        EXPECT_EQ(last == Verdict::Hopeless, locked);
        EXPECT_EQ(meter.SilentMs(), 20000);
    }
}
