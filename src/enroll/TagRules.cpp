#include "enroll/TagRules.h"

TagRules::Refusal TagRules::Check(const QString& tag, const QStringList& present) {
    if (tag.isEmpty())
        return Refusal::Blank;
    if (present.contains(tag))
        return Refusal::Duplicate;
    if (tag.toUcs4().size() > LongestTag)
        return Refusal::TooLong;
    return present.size() < MostTags ? Refusal::None : Refusal::ListTooLong;
}
