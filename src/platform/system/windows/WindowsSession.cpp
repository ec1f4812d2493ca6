#include "platform/ProductConstants.h"
#include "platform/system/SystemSession.h"
#include "platform/system/windows/AccessList.h"

#include <windows.h>

#include <QDir>
#include <QWinEventNotifier>
#include <fcntl.h>
#include <glog/logging.h>
#include <io.h>
#include <knownfolders.h>
#include <memory>
#include <objbase.h>
#include <shlobj.h>
#include <winternl.h>

namespace {

/// An access list: everything for the system, the administrators and the file's owner, nothing inherited.
constexpr wchar_t SystemAdministratorsOwner[] = L"D:P(A;;FA;;;SY)(A;;FA;;;BA)(A;;FA;;;OW)";

/// An access list of an event: the system and the administrators may set it. Its owner, who could else write
/// another list, may read this one.
constexpr wchar_t SystemAdministratorsSet[] = L"D:P(A;;0x1F0003;;;SY)(A;;0x1F0003;;;BA)(A;;RC;;;OW)";

/// The product's folder in one of the system's, such as "C:\ProgramData\Velmora RYX", with the separators
/// that Qt uses.
QString ProductFolder(const KNOWNFOLDERID& id) {
    PWSTR folder = nullptr;
    SHGetKnownFolderPath(id, KF_FLAG_DONT_VERIFY, nullptr, &folder);
    const std::unique_ptr<wchar_t, decltype(&CoTaskMemFree)> owner(folder, &CoTaskMemFree);
    return QString::fromWCharArray(folder ? folder : L"").replace(QLatin1Char('\\'), QLatin1Char('/')) +
           QLatin1Char('/') + QLatin1String(Product::Name);
}

QString SharedFolder() {
    return ProductFolder(FOLDERID_ProgramData);
}

/// What the system tells of its clock; the documented part of the structure ends before the bias.
struct TimeOfDay {
    LARGE_INTEGER bootTime; // in 100 ns, moves with the clock when that is set
    LARGE_INTEGER currentTime;
    LARGE_INTEGER timeZoneBias;
    ULONG timeZoneId;
    ULONG reserved;
    ULONGLONG bootTimeBias; // how far it has been moved
    ULONGLONG sleepTimeBias;
};

class WindowsSession final : public SystemSession {
public:
    quint32 SessionId() const override {
        DWORD session = 0;
        return ProcessIdToSessionId(GetCurrentProcessId(), &session) ? session : 0;
    }

    void InitializeCom() const override {
        const HRESULT result = CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        if (FAILED(result))
            throw HResultError("CoInitializeEx", result);
        // The apartment must outlive this thread's part in it: Qt needs the thread single-threaded for the
        // clipboard, dropped files and file dialogs.
        CO_MTA_USAGE_COOKIE cookie{};
        const HRESULT kept = CoIncrementMTAUsage(&cookie);
        if (FAILED(kept))
            throw HResultError("CoIncrementMTAUsage", kept);
        CoUninitialize();
    }

    void PrepareApplication() const override {}

    /// The system makes the names of its folders, that of ProgramData as well, from the process's variables.
    void ResetVariables() const override {
        wchar_t folder[MAX_PATH];
        const UINT length = GetSystemWindowsDirectoryW(folder, MAX_PATH);
        if (length < 3 || length >= MAX_PATH)
            return;
        for (const wchar_t* name : {L"SystemRoot", L"windir"})
            SetEnvironmentVariableW(name, folder);
        folder[2] = L'\0'; // behind the drive
        SetEnvironmentVariableW(L"SystemDrive", folder);
    }

    /// Those that the program is linked with are there already: Windows looks for them in the program's
    /// folder first. The system's are not to be preferred, for other programs leave theirs there under the
    /// same names.
    void RestrictLibraries() const override {
        SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
        PROCESS_MITIGATION_IMAGE_LOAD_POLICY policy{};
        policy.NoRemoteImages = 1;
        policy.NoLowMandatoryLabelImages = 1;
        SetProcessMitigationPolicy(ProcessImageLoadPolicy, &policy, sizeof policy);
    }

    bool KeepPrivate(const QString& file) const override {
        const auto list = MakeAccessList(SystemAdministratorsOwner);
        return list &&
               SetFileSecurityW(QDir::toNativeSeparators(file).toStdWString().c_str(),
                                DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION, list.get());
    }

    // Qt's own way of opening forbids others to rename and to remove.
    bool OpenShared(QFile& file) const override {
        const std::wstring path = QDir::toNativeSeparators(file.fileName()).toStdWString();
        const HANDLE handle =
            CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                        nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle == INVALID_HANDLE_VALUE)
            return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered); // which knows why it fails
        const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_RDONLY);
        if (descriptor < 0) {
            CloseHandle(handle);
            return false;
        }
        return file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered,
                         QFileDevice::AutoCloseHandle);
    }

    bool MarkFromInternet(const QString& file) const override {
        static const char mark[] = "[ZoneTransfer]\r\nZoneId=3\r\n";
        const std::wstring stream = QDir::toNativeSeparators(file).toStdWString() + L":Zone.Identifier";
        const HANDLE handle = CreateFileW(stream.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle == INVALID_HANDLE_VALUE)
            return false;
        DWORD written = 0;
        const bool marked = WriteFile(handle, mark, sizeof mark - 1, &written, nullptr) != 0;
        CloseHandle(handle);
        return marked;
    }

    QString OwnName(const QString& name) const override { return name; }

    /// The system frees a segment with the last handle to it, however its process ended.
    void ReleaseOrphanedSharedMemory(const QString&) const override {}

    QString ConfigurationFolder() const override { return SharedFolder(); }

    QString SharedLogFolder() const override { return SharedFolder() + QStringLiteral("/log"); }

    QString UserDataFolder() const override { return ProductFolder(FOLDERID_LocalAppData); }

    bool IsEnding(bool) const override { return GetSystemMetrics(SM_SHUTTINGDOWN) != 0; }

    void QuitOnSignals() const override {}

    // An event of its own for each process: nobody else can make it first and hold it for all.
    void OnQuitRequested(QObject& context, const std::function<void()>& quit) const override {
        const auto list = MakeAccessList(SystemAdministratorsSet);
        SECURITY_ATTRIBUTES attributes{sizeof attributes, list.get(), FALSE};
        const std::string name = Product::QuitEvent + std::to_string(GetCurrentProcessId());
        const HANDLE event = list ? CreateEventA(&attributes, TRUE, FALSE, name.c_str()) : nullptr;
        const DWORD error = GetLastError();
        if (!event || error == ERROR_ALREADY_EXISTS) {
            LOG(WARNING) << "WindowsSession::OnQuitRequested has no event of its own: error " << error;
            if (event)
                CloseHandle(event);
            return;
        }
        auto* notifier = new QWinEventNotifier(event, &context);
        QObject::connect(notifier, &QWinEventNotifier::activated, &context, [notifier, quit] {
            notifier->setEnabled(false); // the event stays set
            quit();
        });
        QObject::connect(notifier, &QObject::destroyed, [event] { CloseHandle(event); });
    }

    std::string BootId() const override {
        // Linked against, its library would take functions of the C library's name from the real one.
        const auto query = reinterpret_cast<decltype(&NtQuerySystemInformation)>(
            reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), "NtQuerySystemInformation")));
        TimeOfDay time{};
        if (!query || query(SystemTimeOfDayInformation, &time, sizeof time, nullptr) < 0)
            return {};
        constexpr ULONGLONG perSecond = 10'000'000;
        return std::to_string((static_cast<ULONGLONG>(time.bootTime.QuadPart) - time.bootTimeBias) /
                              perSecond);
    }

    void ProtectProcess() const override {
        const HRESULT restart = RegisterApplicationRestart(L"-hide", RESTART_NO_PATCH | RESTART_NO_REBOOT);
        if (FAILED(restart))
            LOG(WARNING) << HResultError("RegisterApplicationRestart", restart).what();
        ProtectThisProcess();
        ProtectThisThread();
    }

    void ProtectThread() const override { ProtectThisThread(); }

    std::string ToAnsi(const std::wstring& text) const override {
        const int length = static_cast<int>(text.size());
        const int size = WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
        std::string ansi(static_cast<std::size_t>(size), '\0');
        WideCharToMultiByte(CP_ACP, 0, text.data(), length, ansi.data(), size, nullptr, nullptr);
        return ansi;
    }

    // Qt's own way asks for composed characters, which Windows refuses where the code page is UTF-8.
    QString FromAnsi(const std::string& text) const override {
        const int length = static_cast<int>(text.size());
        std::wstring wide(text.size(), L'\0');
        wide.resize(static_cast<std::size_t>(
            MultiByteToWideChar(CP_ACP, 0, text.data(), length, wide.data(), length)));
        return QString::fromStdWString(wide);
    }

private:
    std::string DescribeResult(std::int32_t result) const override {
        wchar_t* words = nullptr;
        const DWORD length = FormatMessageW(
            FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
            nullptr, static_cast<DWORD>(result), 0, reinterpret_cast<wchar_t*>(&words), 0, nullptr);
        const std::unique_ptr<wchar_t, decltype(&LocalFree)> owner(words, &LocalFree);
        return QString::fromWCharArray(words, static_cast<int>(length)).trimmed().toStdString();
    }
};

} // namespace

const SystemSession& SystemSession::Native() {
    static const WindowsSession session;
    return session;
}
