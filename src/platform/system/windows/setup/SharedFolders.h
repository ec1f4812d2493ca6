#pragma once

#include <filesystem>

/// For an installer, with an administrator's rights: makes the folder of the configuration, which users read,
/// and in it the folder "log", in which each user writes and reads files of their own. What is there already
/// is taken over; a configuration that others than administrators may have written is removed, and so is a
/// link in the place of a folder. False, with the system's last error, when that fails.
bool MakeSharedFolders(const std::filesystem::path& folder);
