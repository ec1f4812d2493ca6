#include "sentry.h"

std::vector<std::string> sentryCalls;
int sentryInitResult = 0;

namespace {

sentry_options_t theOptions{1};

void Note(const sentry_options_t* options, const std::string& call) {
    sentryCalls.push_back(options == &theOptions ? call : "wrong options: " + call);
}

} // namespace

sentry_options_t* sentry_options_new() {
    sentryCalls.emplace_back("new");
    return &theOptions;
}

void sentry_options_set_dsn(sentry_options_t* options, const char* dsn) {
    Note(options, std::string("dsn ") + dsn);
}

void sentry_options_set_release(sentry_options_t* options, const char* release) {
    Note(options, std::string("release ") + release);
}

void sentry_options_set_database_pathw(sentry_options_t* options, const wchar_t* path) {
    const std::wstring wide(path);
    Note(options, "database " + std::string(wide.begin(), wide.end()));
}

void sentry_options_set_auto_session_tracking(sentry_options_t* options, int on) {
    Note(options, "sessions " + std::to_string(on));
}

void sentry_options_set_symbolize_stacktraces(sentry_options_t* options, int on) {
    Note(options, "symbolize " + std::to_string(on));
}

void sentry_options_set_environment(sentry_options_t* options, const char* environment) {
    Note(options, std::string("environment ") + environment);
}

int sentry_init(sentry_options_t* options) {
    Note(options, "init");
    return sentryInitResult;
}

int sentry_close() {
    sentryCalls.emplace_back("close");
    return 0;
}
