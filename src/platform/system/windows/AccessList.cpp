#include "platform/system/windows/AccessList.h"

#include <glog/logging.h>
#include <sddl.h>

namespace {

// Everything for the system and the administrators. Everyone else may wait for the object's end and ask for
// its state, and the owner, who could else write another list, may read this one.
constexpr wchar_t ProcessAccess[] = L"D:P(A;;0x1FFFFF;;;SY)(A;;0x1FFFFF;;;BA)(A;;0x101000;;;WD)(A;;RC;;;OW)";
constexpr wchar_t ThreadAccess[] = L"D:P(A;;0x1FFFFF;;;SY)(A;;0x1FFFFF;;;BA)(A;;0x100800;;;WD)(A;;RC;;;OW)";

void Protect(HANDLE object, const wchar_t* access, const char* name) {
    const auto list = MakeAccessList(access);
    if (!list || !SetKernelObjectSecurity(object, DACL_SECURITY_INFORMATION, list.get()))
        LOG(WARNING) << "WindowsSession::Protect " << name << " error " << GetLastError();
}

} // namespace

std::unique_ptr<void, decltype(&LocalFree)> MakeAccessList(const wchar_t* text) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(text, SDDL_REVISION_1, &descriptor, nullptr);
    return {descriptor, &LocalFree};
}

void ProtectThisProcess() {
    Protect(GetCurrentProcess(), ProcessAccess, "process");
}

void ProtectThisThread() {
    Protect(GetCurrentThread(), ThreadAccess, "thread");
}
