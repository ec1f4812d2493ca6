#include "common/SentryGuard.h"
#include "platform/context/AppConfigData.h"
#include "sentry.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

TEST(SentryGuard, SetsItsOptionsBeforeTheStartAndEndsWithItsScope) {
    AppConfigData::Instance()->sentryDsn = "https://key@crash.example/1";
    LogCapture log;
    {
        const SentryGuard guard("VelmoraRYX@User@7", L"temp/sentry-ryx-user");
        ASSERT_FALSE(sentryCalls.empty());
        EXPECT_EQ(sentryCalls.front(), "new");
        EXPECT_EQ(sentryCalls.back(), "init");
    }
    EXPECT_EQ(sentryCalls,
              (std::vector<std::string>{"new", "dsn https://key@crash.example/1", "release VelmoraRYX@User@7",
                                        "database temp/sentry-ryx-user", "sessions 0", "symbolize 1",
                                        "environment velmora", "init", "close"}));
    EXPECT_EQ(log.Count("sentry_init success"), 1);
}

TEST(SentryGuard, AFailingStartIsLoggedAndHarmless) {
    sentryInitResult = 7;
    LogCapture log;
    { const SentryGuard guard("release", L"path"); }
    EXPECT_EQ(log.Count("sentry_init error: 7"), 1);
    EXPECT_EQ(sentryCalls.back(), "close");
}
