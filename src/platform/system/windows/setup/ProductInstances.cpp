#include "platform/system/windows/setup/ProductInstances.h"

#include "platform/ProductConstants.h"
#include "platform/system/windows/OwnedHandle.h"

#include <string>
#include <tlhelp32.h>

namespace {

namespace fs = std::filesystem;

/// The full path of the process's program; empty when the system does not tell it.
fs::path ProgramOf(DWORD process) {
    const ObjectHandle handle(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process));
    std::wstring path(32768, L'\0'); // as long as Windows' paths can be
    auto length = static_cast<DWORD>(path.size());
    if (!handle || !QueryFullProcessImageNameW(handle.get(), 0, path.data(), &length))
        return {};
    path.resize(length);
    return path;
}

} // namespace

std::vector<unsigned long> InstancesIn(const fs::path& folder) {
    std::vector<unsigned long> instances;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    if (snapshot == INVALID_HANDLE_VALUE)
        return instances;
    const ObjectHandle owner(snapshot);
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL found = Process32FirstW(snapshot, &entry); found; found = Process32NextW(snapshot, &entry)) {
        const fs::path program = ProgramOf(entry.th32ProcessID);
        std::error_code error; // of folders that are gone, or closed to us
        if (!program.empty() && fs::equivalent(program.parent_path(), folder, error) &&
            _wcsicmp(program.filename().c_str(), Uninstaller) != 0)
            instances.push_back(entry.th32ProcessID);
    }
    return instances;
}

void AskToEnd(unsigned long process) {
    const std::string name = Product::QuitEvent + std::to_string(process);
    const ObjectHandle event(OpenEventA(EVENT_MODIFY_STATE, FALSE, name.c_str()));
    if (event)
        SetEvent(event.get());
}

void Terminate(unsigned long process) {
    const ObjectHandle handle(OpenProcess(PROCESS_TERMINATE, FALSE, process));
    if (handle)
        TerminateProcess(handle.get(), 1);
}
