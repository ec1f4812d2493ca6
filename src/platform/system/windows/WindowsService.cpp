#include "platform/system/SystemService.h"

#include "platform/system/windows/PipeListener.h"
#include "platform/system/windows/SessionProgram.h"

#include <future>
#include <thread>
#include <wtsapi32.h>

namespace {

constexpr DWORD PendingMs = 10000;    // for the start and for the end
wchar_t serviceName[] = L"ryx-agent"; // nobody looks at it: the process runs this one service

/// The service of this process. The dispatcher has a thread of its own, on which the system's notices come.
struct RunningService {
    SystemService::Notices notices;
    SERVICE_STATUS_HANDLE handle = nullptr;
    std::promise<DWORD> begun; // an error, or 0
    std::thread dispatcher;

    static RunningService& Instance() {
        static RunningService service;
        return service;
    }

    void Tell(DWORD state, int exitCode = 0) const {
        SERVICE_STATUS status{};
        status.dwServiceType = SERVICE_WIN32_OWN_PROCESS;
        status.dwCurrentState = state;
        if (state == SERVICE_RUNNING)
            status.dwControlsAccepted =
                SERVICE_ACCEPT_STOP | SERVICE_ACCEPT_SHUTDOWN | SERVICE_ACCEPT_SESSIONCHANGE;
        else if (state != SERVICE_STOPPED)
            status.dwWaitHint = PendingMs;
        if (exitCode != 0) {
            status.dwWin32ExitCode = ERROR_SERVICE_SPECIFIC_ERROR;
            status.dwServiceSpecificExitCode = static_cast<DWORD>(exitCode);
        }
        SetServiceStatus(handle, &status);
    }
};

DWORD WINAPI Control(DWORD control, DWORD, void*, void*) {
    const RunningService& service = RunningService::Instance();
    switch (control) {
    case SERVICE_CONTROL_STOP:
    case SERVICE_CONTROL_SHUTDOWN:
        service.Tell(SERVICE_STOP_PENDING);
        service.notices.stop();
        return NO_ERROR;
    case SERVICE_CONTROL_SESSIONCHANGE:
        service.notices.sessionsChanged();
        return NO_ERROR;
    case SERVICE_CONTROL_INTERROGATE:
        return NO_ERROR;
    default:
        return ERROR_CALL_NOT_IMPLEMENTED;
    }
}

void WINAPI ServiceMain(DWORD, wchar_t**) {
    RunningService& service = RunningService::Instance();
    service.handle = RegisterServiceCtrlHandlerExW(serviceName, &Control, nullptr);
    if (service.handle)
        service.Tell(SERVICE_START_PENDING);
    service.begun.set_value(service.handle ? NO_ERROR : GetLastError());
}

/// Whether somebody has logged on in the session; yes where the system does not tell, because a front end
/// that runs there must not be ended for that.
bool HasUser(const WTS_SESSION_INFOW& session) {
    if (session.State == WTSListen) // for connections from elsewhere, which get sessions of their own
        return false;
    if (TokenOfSession(session.SessionId))
        return true;
    const DWORD error = GetLastError();
    return error != ERROR_NO_TOKEN && error != ERROR_FILE_NOT_FOUND;
}

class WindowsService final : public SystemService {
public:
    std::unique_ptr<Listener> Listen(const QString& pipeName, const std::function<void(qintptr)>& connected,
                                     QString& problem) const override {
        auto listener = std::make_unique<PipeListener>(pipeName, connected);
        const DWORD error = listener->Begin();
        if (error == ERROR_SUCCESS)
            return listener;
        problem = error == ERROR_ACCESS_DENIED || error == ERROR_PIPE_BUSY
                      ? QStringLiteral("another process serves it")
                      : qt_error_string(static_cast<int>(error));
        return nullptr;
    }

    QString BeginService(const Notices& notices) const override {
        // The programs that it starts inherit this: one that lacks a library ends, and does not wait for
        // somebody to close the system's message.
        SetErrorMode(SEM_FAILCRITICALERRORS);
        RunningService& service = RunningService::Instance();
        service.notices = notices;
        service.dispatcher = std::thread([&service] {
            const SERVICE_TABLE_ENTRYW table[] = {{serviceName, &ServiceMain}, {nullptr, nullptr}};
            if (!StartServiceCtrlDispatcherW(table)) // otherwise it comes back when the service has ended
                service.begun.set_value(GetLastError());
        });
        const DWORD error = service.begun.get_future().get();
        if (error == NO_ERROR)
            return {};
        if (!service.handle)
            service.dispatcher.join();
        return qt_error_string(static_cast<int>(error));
    }

    void TellRunning() const override {
        if (RunningService::Instance().handle)
            RunningService::Instance().Tell(SERVICE_RUNNING);
    }

    void EndService(int exitCode) const override {
        RunningService& service = RunningService::Instance();
        if (!service.handle)
            return;
        service.Tell(SERVICE_STOPPED, exitCode);
        service.dispatcher.join();
    }

    std::optional<std::vector<quint32>> UserSessions() const override {
        std::vector<quint32> sessions;
        WTS_SESSION_INFOW* found = nullptr;
        DWORD count = 0;
        if (!WTSEnumerateSessionsW(WTS_CURRENT_SERVER_HANDLE, 0, 1, &found, &count))
            return std::nullopt;
        const std::unique_ptr<void, decltype(&WTSFreeMemory)> owner(found, &WTSFreeMemory);
        for (DWORD i = 0; i < count; ++i)
            if (found[i].SessionId != 0 && HasUser(found[i])) // 0: the services' own
                sessions.push_back(found[i].SessionId);
        return sessions;
    }

    std::unique_ptr<Program> StartInSession(quint32 session, const QString& program,
                                            const QStringList& arguments,
                                            const std::function<void(quint32)>& ended,
                                            QString& problem) const override {
        return SessionProgram::Start(session, program, arguments, ended, problem);
    }
};

} // namespace

const SystemService& SystemService::Native() {
    static const WindowsService service;
    return service;
}
