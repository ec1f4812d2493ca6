#include "platform/system/windows/SessionProgram.h"

#include "platform/system/windows/AccessList.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <userenv.h>
#include <wtsapi32.h>

namespace {

constexpr DWORD EndMs = 1000;
constexpr UINT EndedByService = 1;

/// All that the environment of a program takes from its user: where the user's things are. Any other variable
/// of theirs could have it load a foreign library.
constexpr const char* PlacesOfUser[] = {"APPDATA",      "HOMEDRIVE",   "HOMEPATH",   "HOMESHARE",
                                        "LOCALAPPDATA", "LOGONSERVER", "TEMP",       "TMP",
                                        "USERDOMAIN",   "USERNAME",    "USERPROFILE"};

using Environment = QMap<QString, QString>; // by the name in capitals

/// The variables that the system has for the user of the token; of nobody: those of the machine alone.
Environment EnvironmentOf(HANDLE token) {
    Environment environment;
    void* block = nullptr;
    if (!CreateEnvironmentBlock(&block, token, FALSE))
        return environment;
    const std::unique_ptr<void, decltype(&DestroyEnvironmentBlock)> owner(block, &DestroyEnvironmentBlock);
    for (const auto* line = static_cast<const wchar_t*>(block); *line != L'\0';) {
        const QString text = QString::fromWCharArray(line);
        line += text.size() + 1;
        const int equals = text.indexOf(QLatin1Char('='), 1); // the name of a drive's folder begins with one
        environment.insert(text.left(equals).toUpper(), text.mid(equals + 1));
    }
    return environment;
}

std::wstring EnvironmentFor(HANDLE token) {
    Environment environment = EnvironmentOf(nullptr);
    const Environment ofUser = EnvironmentOf(token);
    for (const char* place : PlacesOfUser)
        if (const QString name = QLatin1String(place); ofUser.contains(name))
            environment.insert(name, ofUser.value(name));
    std::wstring block;
    for (auto variable = environment.cbegin(); variable != environment.cend(); ++variable)
        block += (variable.key() + QLatin1Char('=') + variable.value()).toStdWString() + L'\0';
    return block + L'\0';
}

/// As the C library of the program takes it apart again.
QString Quoted(const QString& argument) {
    static const QRegularExpression special(QStringLiteral("[\\s\"]"));
    if (!argument.isEmpty() && !argument.contains(special))
        return argument;
    QString quoted;
    int backslashes = 0;
    for (const QChar character : argument) {
        if (character == QLatin1Char('"')) // of those before a quotation mark each counts for half of one
            quoted += QString(backslashes + 1, QLatin1Char('\\'));
        backslashes = character == QLatin1Char('\\') ? backslashes + 1 : 0;
        quoted += character;
    }
    return QLatin1Char('"') + quoted + QString(backslashes, QLatin1Char('\\')) + QLatin1Char('"');
}

} // namespace

ObjectHandle TokenOfSession(quint32 session) {
    HANDLE token = nullptr;
    return ObjectHandle(WTSQueryUserToken(session, &token) ? token : nullptr);
}

std::unique_ptr<SessionProgram> SessionProgram::Start(quint32 session, const QString& program,
                                                      const QStringList& arguments,
                                                      const std::function<void(quint32)>& ended,
                                                      QString& problem) {
    const ObjectHandle token = TokenOfSession(session);
    if (!token) {
        problem = qt_error_string(static_cast<int>(GetLastError()));
        return nullptr;
    }
    const std::wstring file = QDir::toNativeSeparators(program).toStdWString();
    const std::wstring folder = QDir::toNativeSeparators(QFileInfo(program).absolutePath()).toStdWString();
    QStringList words(QDir::toNativeSeparators(program));
    words += arguments;
    for (QString& word : words)
        word = Quoted(word);
    std::wstring commandLine = words.join(QLatin1Char(' ')).toStdWString();
    std::wstring environment = EnvironmentFor(token.get());
    std::wstring desktop = L"winsta0\\default";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.lpDesktop = desktop.data();

    const auto processAccess = MakeAccessList(ProcessAccess);
    const auto threadAccess = MakeAccessList(ThreadAccess);
    SECURITY_ATTRIBUTES process{sizeof process, processAccess.get(), FALSE};
    SECURITY_ATTRIBUTES thread{sizeof thread, threadAccess.get(), FALSE};
    PROCESS_INFORMATION started{};
    // As the user: otherwise the process, its first thread and its token would belong to this service's
    // account, and the program could not open them itself.
    const bool isStarted = ImpersonateLoggedOnUser(token.get()) &&
                           CreateProcessAsUserW(token.get(), file.c_str(), commandLine.data(), &process,
                                                &thread, FALSE, CREATE_UNICODE_ENVIRONMENT,
                                                environment.data(), folder.c_str(), &startup, &started);
    if (!isStarted)
        problem = qt_error_string(static_cast<int>(GetLastError()));
    RevertToSelf();
    if (!isStarted)
        return nullptr;
    CloseHandle(started.hThread);
    return std::make_unique<SessionProgram>(started, ended);
}

SessionProgram::SessionProgram(const PROCESS_INFORMATION& process, const std::function<void(quint32)>& ended)
    : m_process(process.hProcess), m_id(process.dwProcessId), m_notifier(process.hProcess) {
    QObject::connect(&m_notifier, &QWinEventNotifier::activated, &m_notifier, [this, ended] {
        m_notifier.setEnabled(false);
        DWORD exitCode = 0;
        GetExitCodeProcess(m_process.get(), &exitCode);
        ended(exitCode);
    });
}

SessionProgram::~SessionProgram() {
    m_notifier.setEnabled(false);
    TerminateProcess(m_process.get(), EndedByService);
    WaitForSingleObject(m_process.get(), EndMs);
}
