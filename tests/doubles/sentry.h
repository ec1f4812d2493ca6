#pragma once

// A double of the crash-reporting C library: every call is noted in sentryCalls.

#include <string>
#include <vector>

struct sentry_options_t {
    int serial;
};

sentry_options_t* sentry_options_new();
void sentry_options_set_dsn(sentry_options_t* options, const char* dsn);
void sentry_options_set_release(sentry_options_t* options, const char* release);
void sentry_options_set_database_pathw(sentry_options_t* options, const wchar_t* path);
void sentry_options_set_auto_session_tracking(sentry_options_t* options, int on);
void sentry_options_set_symbolize_stacktraces(sentry_options_t* options, int on);
void sentry_options_set_environment(sentry_options_t* options, const char* environment);
int sentry_init(sentry_options_t* options);
int sentry_close();

/// The calls so far, such as "release VelmoraRYX".
extern std::vector<std::string> sentryCalls;
/// What sentry_init is to return.
extern int sentryInitResult;
