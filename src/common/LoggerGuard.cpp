#include "common/LoggerGuard.h"

#include "platform/context/Logging.h"
#include "platform/context/RyxPath.h"
#include "platform/system/SystemSession.h"

LoggerGuard::LoggerGuard(bool sessionPrefix, const std::string& name) {
    const SystemSession& session = SystemSession::Native();
    const std::string prefix = sessionPrefix ? std::to_string(session.SessionId()) + "-" : std::string();
    InitLogger(prefix + name, session.ToAnsi(RyxPath::GetRyxLogDir()), 10, 10);
}

LoggerGuard::~LoggerGuard() {
    ReleaseLogger();
}
