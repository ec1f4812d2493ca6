#include "platform/system/SystemProcesses.h"

#include "platform/system/windows/ComGuard.h"
#include "platform/system/windows/Handles.h"

#include <wbemidl.h>

#include <glog/logging.h>
#include <vector>
#include <wrl/client.h>

namespace {

using Microsoft::WRL::ComPtr;

constexpr LONG NextTimeoutMs = 5000;
constexpr DWORD LongestPath = 32768;

struct FreeText {
    void operator()(OLECHAR* text) const { SysFreeString(text); }
};
/// A text as COM takes it.
using ComText = std::unique_ptr<OLECHAR, FreeText>;

ComText MakeComText(const wchar_t* text) {
    return ComText(SysAllocString(text));
}

/// A call of COM or WMI failed.
struct QueryFailure {
    HRESULT result;
};

void Require(HRESULT result) {
    if (FAILED(result))
        throw QueryFailure{result};
}

/// One property of an object, freed with this.
class Property {
public:
    Property(IWbemClassObject& object, const wchar_t* name) {
        VariantInit(&m_value);
        Require(object.Get(name, 0, &m_value, nullptr, nullptr));
    }
    ~Property() { VariantClear(&m_value); }
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;

    /// Without text, such as that of a process which may not be read, it is like no other.
    bool IsText(const std::wstring& text) const {
        return m_value.vt == VT_BSTR &&
               CompareStringOrdinal(m_value.bstrVal, -1, text.c_str(), -1, TRUE) == CSTR_EQUAL;
    }
    quint32 Number() const { return m_value.vt == VT_I4 ? static_cast<quint32>(m_value.lVal) : 0; }

private:
    VARIANT m_value{};
};

ComPtr<IWbemServices> ConnectToWmi() {
    ComPtr<IWbemLocator> locator;
    Require(CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&locator)));
    ComPtr<IWbemServices> services;
    Require(locator->ConnectServer(MakeComText(L"ROOT\\cimv2").get(), nullptr, nullptr, nullptr,
                                   WBEM_FLAG_CONNECT_USE_MAX_WAIT, nullptr, nullptr, &services));
    Require(CoSetProxyBlanket(services.Get(), RPC_C_AUTHN_WINNT, RPC_C_AUTHZ_NONE, nullptr,
                              RPC_C_AUTHN_LEVEL_CALL, RPC_C_IMP_LEVEL_IMPERSONATE, nullptr, EOAC_NONE));
    return services;
}

quint32 FindInWmi(const std::wstring& name, const std::wstring& commandLine) {
    const ComGuard com(COINIT_APARTMENTTHREADED);
    Require(com.Result());
    const ComPtr<IWbemServices> services = ConnectToWmi();
    const std::wstring query = L"SELECT * FROM Win32_Process Where Name = '" + name + L"'";
    ComPtr<IEnumWbemClassObject> found;
    Require(services->ExecQuery(MakeComText(L"WQL").get(), MakeComText(query.c_str()).get(),
                                WBEM_FLAG_FORWARD_ONLY | WBEM_FLAG_RETURN_IMMEDIATELY, nullptr, &found));
    for (;;) {
        ComPtr<IWbemClassObject> process;
        ULONG count = 0;
        Require(found->Next(NextTimeoutMs, 1, &process, &count));
        if (count == 0)
            return 0;
        if (Property(*process.Get(), L"CommandLine").IsText(commandLine))
            return Property(*process.Get(), L"ProcessId").Number();
    }
}

/// A mark of the process's start; 0 when it cannot be read.
quint32 StartOf(HANDLE process) {
    FILETIME created{}, exited{}, kernel{}, user{};
    return GetProcessTimes(process, &created, &exited, &kernel, &user) ? created.dwLowDateTime : 0;
}

bool HasEnded(HANDLE process) {
    DWORD code = STILL_ACTIVE;
    return GetExitCodeProcess(process, &code) && code != STILL_ACTIVE;
}

class WindowsProcesses final : public SystemProcesses {
public:
    ProcessIdentity Find(const QString& name, const QString& commandLine) const override {
        try {
            const quint32 id = FindInWmi(name.toStdWString(), commandLine.toStdWString());
            return id == 0 ? ProcessIdentity() : Identify(id);
        } catch (const QueryFailure& failure) {
            LOG(INFO) << "SystemProcesses::Find Query for operating system name failed. Error code = 0x"
                      << std::hex << static_cast<quint32>(failure.result);
            return {};
        }
    }

    QString GetProcessFilePath(quint32 id) const override {
        const ObjectHandle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
        std::vector<wchar_t> path(LongestPath);
        DWORD length = LongestPath;
        if (!process || !QueryFullProcessImageNameW(process.get(), 0, path.data(), &length))
            return {};
        return QString::fromWCharArray(path.data(), static_cast<int>(length));
    }

    ProcessIdentity Identify(quint32 id) const override {
        const ObjectHandle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
        if (!process)
            return GetLastError() == ERROR_INVALID_PARAMETER ? ProcessIdentity() : ProcessIdentity{id, 0};
        return HasEnded(process.get()) ? ProcessIdentity() : ProcessIdentity{id, StartOf(process.get())};
    }

    Terminated Terminate(const ProcessIdentity& process) const override {
        const ObjectHandle handle(OpenProcess(PROCESS_ALL_ACCESS, FALSE, process.id));
        if (!handle)
            return {Ending::NotOpened, GetLastError()};
        if (StartOf(handle.get()) != process.started)
            return {Ending::NoLongerThere};
        if (!TerminateProcess(handle.get(), 0))
            return {Ending::NotTerminated, GetLastError()};
        return {Ending::Done};
    }
};

} // namespace

const SystemProcesses& SystemProcesses::Native() {
    static const WindowsProcesses processes;
    return processes;
}
