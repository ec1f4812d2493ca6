#include "platform/ProductConstants.h"
#include "platform/system/SystemSession.h"

#include <windows.h>

#include <QDir>
#include <knownfolders.h>
#include <memory>
#include <objbase.h>
#include <sddl.h>
#include <shlobj.h>

namespace {

/// An access list: everything for the system, the administrators and the file's owner, nothing inherited.
constexpr wchar_t SystemAdministratorsOwner[] = L"D:P(A;;FA;;;SY)(A;;FA;;;BA)(A;;FA;;;OW)";

/// "C:\ProgramData\Velmora RYX", with the separators that Qt uses.
QString SharedFolder() {
    PWSTR folder = nullptr;
    const HRESULT result = SHGetKnownFolderPath(FOLDERID_ProgramData, KF_FLAG_DEFAULT, nullptr, &folder);
    const std::unique_ptr<wchar_t, decltype(&CoTaskMemFree)> owner(folder, &CoTaskMemFree);
    const QString base =
        SUCCEEDED(result) ? QString::fromWCharArray(folder) : qEnvironmentVariable("ProgramData");
    return QString(base).replace(QLatin1Char('\\'), QLatin1Char('/')) + QLatin1Char('/') +
           QLatin1String(Product::Name);
}

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
        CO_MTA_USAGE_COOKIE forever{};
        const HRESULT kept = CoIncrementMTAUsage(&forever);
        if (FAILED(kept))
            throw HResultError("CoIncrementMTAUsage", kept);
        CoUninitialize();
    }

    void PrepareApplication() const override {}

    bool KeepPrivate(const QString& file) const override {
        PSECURITY_DESCRIPTOR descriptor = nullptr;
        if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(SystemAdministratorsOwner, SDDL_REVISION_1,
                                                                  &descriptor, nullptr))
            return false;
        const std::unique_ptr<void, decltype(&LocalFree)> owner(descriptor, &LocalFree);
        return SetFileSecurityW(QDir::toNativeSeparators(file).toStdWString().c_str(),
                                DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                                descriptor) != FALSE;
    }

    QString SharedMemoryKey(const QString& name) const override { return name; }

    /// The system frees a segment with the last handle to it, however its process ended.
    void ReleaseOrphanedSharedMemory(const QString&) const override {}

    QString ConfigurationFolder() const override { return SharedFolder(); }

    QString LogFolder() const override { return SharedFolder() + QStringLiteral("/log"); }

    std::string ToAnsi(const std::wstring& text) const override {
        const int length = static_cast<int>(text.size());
        const int size = WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
        std::string ansi(static_cast<std::size_t>(size), '\0');
        WideCharToMultiByte(CP_ACP, 0, text.data(), length, ansi.data(), size, nullptr, nullptr);
        return ansi;
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
