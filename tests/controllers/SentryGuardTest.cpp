#include "common/SentryGuard.h"
#include "platform/context/AppConfigData.h"
#include "sentry.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

TEST(SentryGuard, SetsItsOptionsBeforeTheStartAndEndsWithItsScopeAlsoWhenTheStartFails) {
    AppConfigData::Instance()->sentryDsn = "https://key@crash.example/1";
    for (const auto& [result, line] : {std::pair{0, "sentry_init success"}, {7, "sentry_init error: 7"}}) {
        const LogCapture log;
        sentryInitResult = result;
        sentryCalls.clear();
        { const SentryGuard guard("VelmoraRYX@User@7", L"temp/sentry-ryx-user"); }
        EXPECT_EQ(sentryCalls, (std::vector<std::string>{
                                   "new", "dsn https://key@crash.example/1", "release VelmoraRYX@User@7",
                                   "database temp/sentry-ryx-user", "sessions 0", "symbolize 1",
                                   "environment velmora", "init", "close"}));
        EXPECT_EQ(log.Count(line), 1);
    }
}
