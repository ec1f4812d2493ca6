#pragma once

#include <memory>

#include <windows.h>

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
