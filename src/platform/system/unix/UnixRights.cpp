#include "platform/system/FileRights.h"

#include <sys/stat.h>
#include <unistd.h>

FileRights FileRights::Of(const std::filesystem::path& path) {
    struct stat facts {};
    if (::lstat(path.c_str(), &facts) != 0)
        return {};
    FileRights rights;
    rights.areKnown = true;
    rights.isLink = S_ISLNK(facts.st_mode);
    rights.isOwnedByAdministrators = facts.st_uid == 0;
    rights.isOwn = facts.st_uid == ::geteuid();
    rights.owner = "user " + std::to_string(facts.st_uid);
    // With an access list, the group's part says what the list gives at most, to whomever.
    if (facts.st_mode & S_IWOTH)
        rights.writer = "everybody";
    else if (facts.st_mode & S_IWGRP)
        rights.writer = "group " + std::to_string(facts.st_gid);
    return rights;
}
