#pragma once

#include <filesystem>
#include <vector>

/// The name of the program that removes the product, which runs where the product stands.
inline constexpr wchar_t Uninstaller[] = L"Uninstall.exe";

/// The processes, of all sessions, whose program stands in `folder`; not its uninstaller.
std::vector<unsigned long> InstancesIn(const std::filesystem::path& folder);

/// Asks the process to end by itself, as often as one likes.
void AskToEnd(unsigned long process);

/// Ends the process at once.
void Terminate(unsigned long process);
