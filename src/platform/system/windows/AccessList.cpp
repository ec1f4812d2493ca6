#include "platform/system/windows/AccessList.h"

#include <glog/logging.h>
#include <sddl.h>

namespace {

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
