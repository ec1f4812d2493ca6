#pragma once

// A double of the crash-reporting C library: every call with its options is noted in sentryCalls.

#include <string>
#include <vector>

using sentry_options_t = const int;

/// The calls so far, such as "release VelmoraRYX".
inline std::vector<std::string> sentryCalls;
/// What sentry_init is to return.
inline int sentryInitResult = 0;

inline sentry_options_t theSentryOptions = 0;

inline int NoteSentryCall(sentry_options_t* options, const std::string& call) {
    sentryCalls.push_back(options == &theSentryOptions ? call : "wrong options: " + call);
    return 0;
}

inline sentry_options_t* sentry_options_new() {
    NoteSentryCall(&theSentryOptions, "new");
    return &theSentryOptions;
}
inline void sentry_options_set_dsn(sentry_options_t* options, const char* dsn) {
    NoteSentryCall(options, std::string("dsn ") + dsn);
}
inline void sentry_options_set_release(sentry_options_t* options, const char* release) {
    NoteSentryCall(options, std::string("release ") + release);
}
inline void sentry_options_set_database_pathw(sentry_options_t* options, const wchar_t* path) {
    const std::wstring text = path;
    NoteSentryCall(options, "database " + std::string(text.begin(), text.end()));
}
inline void sentry_options_set_auto_session_tracking(sentry_options_t* options, int on) {
    NoteSentryCall(options, "sessions " + std::to_string(on));
}
inline void sentry_options_set_symbolize_stacktraces(sentry_options_t* options, int on) {
    NoteSentryCall(options, "symbolize " + std::to_string(on));
}
inline void sentry_options_set_environment(sentry_options_t* options, const char* environment) {
    NoteSentryCall(options, std::string("environment ") + environment);
}
inline int sentry_init(sentry_options_t* options) {
    return NoteSentryCall(options, "init") + sentryInitResult;
}
inline int sentry_close() {
    return NoteSentryCall(&theSentryOptions, "close");
}
