#include "platform/system/windows/AccessList.h"

#include "platform/system/windows/Handles.h"

#include <glog/logging.h>
#include <mutex>
#include <sddl.h>
#include <set>

namespace {

constexpr wchar_t OpenThreadAccess[] = L"D:P(A;;0x1FFFFF;;;SY)(A;;0x1FFFFF;;;BA)(A;;0x1FFFFF;;;OW)";

/// The protected threads, by handles that have the rights which nobody gets any more.
struct ProtectedThreads {
    std::mutex mutex;
    std::set<HANDLE> handles;
    const std::unique_ptr<void, decltype(&LocalFree)> openList = MakeAccessList(OpenThreadAccess);

    static ProtectedThreads& All() {
        static auto* all = new ProtectedThreads; // outlives every thread
        return *all;
    }
};

/// Keeps the calling thread among them until it ends.
class ProtectedThread {
public:
    ProtectedThread() {
        HANDLE handle = nullptr;
        if (!DuplicateHandle(GetCurrentProcess(), GetCurrentThread(), GetCurrentProcess(), &handle, 0, FALSE,
                             DUPLICATE_SAME_ACCESS))
            return;
        m_handle.reset(handle);
        const std::lock_guard<std::mutex> lock(ProtectedThreads::All().mutex);
        ProtectedThreads::All().handles.insert(handle);
    }
    ~ProtectedThread() {
        const std::lock_guard<std::mutex> lock(ProtectedThreads::All().mutex);
        ProtectedThreads::All().handles.erase(m_handle.get());
    }
    Q_DISABLE_COPY(ProtectedThread)

private:
    ObjectHandle m_handle;
};

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
    static thread_local const ProtectedThread thread;
    Protect(GetCurrentThread(), ThreadAccess, "thread");
}

void OpenProtectedThreads() {
    ProtectedThreads& threads = ProtectedThreads::All();
    const std::unique_lock<std::mutex> lock(threads.mutex, std::try_to_lock);
    if (!lock || !threads.openList)
        return;
    for (const HANDLE thread : threads.handles)
        SetKernelObjectSecurity(thread, DACL_SECURITY_INFORMATION, threads.openList.get());
}
