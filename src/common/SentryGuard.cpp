#include "common/SentryGuard.h"

#include <glog/logging.h>

#ifdef RYX_SENTRY

#include "platform/context/AppConfigData.h"

#include <QString>
#include <sentry.h>

namespace {

void SetDatabasePath(sentry_options_t* options, const std::wstring& path) {
#ifdef RYX_SENTRY_WIDE_PATH
    sentry_options_set_database_pathw(options, path.c_str());
#else
    sentry_options_set_database_path(options, QString::fromStdWString(path).toLocal8Bit().constData());
#endif
}

} // namespace

SentryGuard::SentryGuard(const std::string& release, const std::wstring& databasePath) {
    sentry_options_t* options = sentry_options_new();
    sentry_options_set_dsn(options, AppConfigData::Instance()->GetSentryDSN().c_str());
    sentry_options_set_release(options, release.c_str());
    SetDatabasePath(options, databasePath);
    sentry_options_set_auto_session_tracking(options, 0);
    sentry_options_set_symbolize_stacktraces(options, 1);
    sentry_options_set_environment(options, "velmora");
    if (const int result = sentry_init(options))
        LOG(INFO) << "SentryGuard::SentryGuard sentry_init error: " << result;
    else
        LOG(INFO) << "SentryGuard::SentryGuard sentry_init success";
}

SentryGuard::~SentryGuard() {
    sentry_close();
}

#else

SentryGuard::SentryGuard(const std::string&, const std::wstring&) {
    LOG(INFO) << "SentryGuard::SentryGuard crash reporting is not built in";
}

SentryGuard::~SentryGuard() = default;

#endif
