#include "platform/system/FileRights.h"

std::string FileRights::WhyNotTrusted() const {
    if (!areKnown)
        return "cannot be examined";
    if (isLink)
        return "is a link";
    if (!isOwnedByAdministrators)
        return "belongs to " + owner;
    return writer.empty() ? std::string() : "may be changed by " + writer;
}
