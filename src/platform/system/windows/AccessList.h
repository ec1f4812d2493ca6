#pragma once

#include <memory>

#include <windows.h>

// Everything for the system and the administrators. Everyone else may wait for the object's end and ask for
// its state, and the owner, who could else write another list, may read this one.
constexpr wchar_t ProcessAccess[] = L"D:P(A;;0x1FFFFF;;;SY)(A;;0x1FFFFF;;;BA)(A;;0x101000;;;WD)(A;;RC;;;OW)";
constexpr wchar_t ThreadAccess[] = L"D:P(A;;0x1FFFFF;;;SY)(A;;0x1FFFFF;;;BA)(A;;0x100800;;;WD)(A;;RC;;;OW)";

/// A security descriptor with the access list that `text` (in SDDL) describes; null, with the system's last
/// error, when it cannot be made. Any thread.
std::unique_ptr<void, decltype(&LocalFree)> MakeAccessList(const wchar_t* text);

/// From now on other programs of the user can neither end the process nor look or write into it; those of the
/// system and of administrators can. What fails is logged.
void ProtectThisProcess();

/// The same for the calling thread, which the process's own list does not speak of.
void ProtectThisThread();

/// Lets this user's programs look into the protected threads, as the record of a crash has to. Needs no
/// memory, and does nothing when a thread was stopped in the middle of the list. Any thread.
void OpenProtectedThreads();
