#include "platform/ProductConstants.h"
#include "platform/system/SystemCrash.h"
#include "platform/system/SystemSession.h"
#include "platform/system/windows/AccessList.h"
#include "platform/system/windows/Minidump.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <cwchar>
#include <shellapi.h>
#include <thread>

// A process that has crashed cannot be trusted to describe itself: whoever writes the record stops all other
// threads, and waits for ever if one of them holds a lock that he needs. So the record is written by a
// process of its own, which is started by a thread that has waited for nothing else; and the thread that has
// crashed waits for them no longer than a limit.
namespace {

constexpr DWORD AbortCode = 0x40000015; // the system's word for a program that ends itself
constexpr wchar_t RecorderOption[] = L"--crash";
// Five seconds in all: the recorder ends itself and the process it describes, then there is still time for a
// crash reporter that was there before.
constexpr DWORD RecorderMs = 3000;
constexpr DWORD RecordedMs = 4000;
constexpr DWORD ReporterMs = 700;

/// What Record makes ready; it stays until the process ends.
struct Prepared {
    HANDLE process = nullptr; // of this one, with every right
    HANDLE mainThread = nullptr;
    HANDLE ready = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE crashed = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE recorded = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::wstring program;
    std::wstring command;
    LPTOP_LEVEL_EXCEPTION_FILTER before = nullptr;
    MINIDUMP_EXCEPTION_INFORMATION facts{}; // read by the recorder
};
Prepared* prepared = nullptr;

void StartRecorder() {
    ProtectThisThread();
    SetEvent(prepared->ready);
    const HANDLE events[] = {prepared->crashed, prepared->mainThread};
    if (WaitForMultipleObjects(2, events, FALSE, INFINITE) != WAIT_OBJECT_0)
        TerminateProcess(GetCurrentProcess(),
                         AbortCode); // the main thread had no stack left to crash properly
    // Not before: every program that is started meanwhile would get it.
    SetHandleInformation(prepared->process, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION recorder{};
    if (CreateProcessW(prepared->program.c_str(), prepared->command.data(), nullptr, nullptr, TRUE,
                       CREATE_NO_WINDOW, nullptr, nullptr, &startup, &recorder))
        WaitForSingleObject(recorder.hProcess, RecordedMs);
    SetEvent(prepared->recorded);
    Sleep(ReporterMs);
    TerminateProcess(GetCurrentProcess(), AbortCode);
}

LONG WINAPI OnCrash(EXCEPTION_POINTERS* exception) {
    static std::atomic<bool> isFirst{true};
    if (isFirst.exchange(false)) {
        prepared->facts = {GetCurrentThreadId(), exception, TRUE};
        OpenProtectedThreads();
        SetEvent(prepared->crashed);
    }
    WaitForSingleObject(prepared->recorded, RecordedMs);
    if (prepared->before)
        prepared->before(exception);
    TerminateProcess(GetCurrentProcess(), exception->ExceptionRecord->ExceptionCode);
    return EXCEPTION_EXECUTE_HANDLER;
}

/// The C library ends the process by itself after this, and no filter hears of it.
void OnAbort(int) {
    RaiseException(AbortCode, EXCEPTION_NONCONTINUABLE, 0, nullptr);
}

void WriteDump(HANDLE process, const void* factsThere, const QString& path) {
    MINIDUMP_EXCEPTION_INFORMATION facts{};
    if (!ReadProcessMemory(process, factsThere, &facts, sizeof facts, nullptr))
        return;
    const QByteArray dump = MakeMinidump(process, facts);
    QFile file(path);
    if (!file.open(QIODevice::NewOnly | QIODevice::WriteOnly))
        return;
    if (!SystemSession::Native().KeepPrivate(path) || file.write(dump) != dump.size() || !file.flush())
        file.remove(); // half a record, as on a full disk, tells nothing
}

class WindowsCrash final : public SystemCrash {
public:
    void Record(const QString& file) const override {
        prepared = new Prepared;
        const QString program = QDir::toNativeSeparators(QCoreApplication::applicationDirPath() +
                                                         QStringLiteral("/ryx-capture.exe"));
        DuplicateHandle(GetCurrentProcess(), GetCurrentProcess(), GetCurrentProcess(), &prepared->process, 0,
                        FALSE, DUPLICATE_SAME_ACCESS);
        prepared->program = program.toStdWString();
        prepared->command = QStringLiteral("\"%1\" %2 %3 %4 \"%5\"")
                                .arg(program, QString::fromWCharArray(RecorderOption))
                                .arg(reinterpret_cast<quintptr>(prepared->process))
                                .arg(reinterpret_cast<quintptr>(&prepared->facts))
                                .arg(QDir::toNativeSeparators(file))
                                .toStdWString();
        DuplicateHandle(GetCurrentProcess(), GetCurrentThread(), GetCurrentProcess(), &prepared->mainThread,
                        SYNCHRONIZE, FALSE, 0);
        std::thread(StartRecorder).detach();
        WaitForSingleObject(prepared->ready, INFINITE); // a thread starts only while nobody loads libraries
        ULONG guaranteed = 64 * 1024; // for a filter that is called because the stack ran out
        SetThreadStackGuarantee(&guaranteed);
        prepared->before = SetUnhandledExceptionFilter(OnCrash);
        std::signal(SIGABRT, OnAbort);
    }

    QString RecordSuffix() const override { return QStringLiteral(".dmp"); }

    bool WriteRecord() const override {
        int count = 0;
        wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
        if (!words || count != 5 || std::wcscmp(words[1], RecorderOption) != 0)
            return false;
        const auto number = [words](int at) { return std::wcstoull(words[at], nullptr, 10); };
        const HANDLE process = reinterpret_cast<HANDLE>(static_cast<quintptr>(number(2)));
        std::thread([process] {
            Sleep(RecorderMs);
            TerminateProcess(process, AbortCode); // its threads may be stopped
            TerminateProcess(GetCurrentProcess(), EXIT_FAILURE);
        }).detach();
        WriteDump(process, reinterpret_cast<const void*>(static_cast<quintptr>(number(3))),
                  QString::fromWCharArray(words[4]));
        return true;
    }

    void TellEnd(const std::string& reason) const override {
        const std::wstring source = QString::fromLatin1(Product::Name).toStdWString();
        const std::wstring text = QString::fromStdString(reason).toStdWString();
        const wchar_t* texts[] = {text.c_str()};
        const HANDLE log = RegisterEventSourceW(nullptr, source.c_str());
        ReportEventW(log, EVENTLOG_ERROR_TYPE, 0, 1, nullptr, 1, 0, texts, nullptr);
        DeregisterEventSource(log);
    }
};

} // namespace

const SystemCrash& SystemCrash::Native() {
    static const WindowsCrash crash;
    return crash;
}
