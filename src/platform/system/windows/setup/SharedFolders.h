#pragma once

#include <filesystem>

/// For an installer, with an administrator's rights: makes the folder of the configuration, which users read,
/// and in it the folder "log", in which each user writes and reads files of their own. Folders that are the
/// administrators' already are taken over. Others, links, and a configuration that others than administrators
/// may have written are renamed to "NAME.old-NUMBER". False, with the system's last error, when that fails.
bool MakeSharedFolders(const std::filesystem::path& folder);
