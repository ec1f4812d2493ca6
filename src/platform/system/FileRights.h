#pragma once

#include <filesystem>
#include <string>

/// Who may change a file or a folder, as far as it decides whether its content is an administrator's word.
struct FileRights {
    bool areKnown = false;                ///< false: it is not there, or the system does not tell
    bool isLink = false;                  ///< the rights are those of the link then
    bool isOwnedByAdministrators = false; ///< or by the system
    std::string owner;                    ///< as the system counts accounts, for the log
    std::string writer; ///< somebody else who may change, replace or remove it; empty: there is nobody
    bool isOwn = false; ///< belongs to whom the files belong that this process makes

    /// The rights of what stands at `path`, without following a link there. Any thread.
    static FileRights Of(const std::filesystem::path& path);

    /// Why others than administrators may have their hands in it, to stand behind its name; empty when they
    /// cannot have.
    std::string WhyNotTrusted() const;
};
