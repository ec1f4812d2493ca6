#pragma once

#include <QStringList>

/// What a tag may be, and how many of them a device may have. Any thread.
namespace TagRules {

constexpr int LongestTag = 32; ///< in characters
constexpr int MostTags = 20;

enum class Refusal { None, Blank, Duplicate, TooLong, ListTooLong };

/// Why `tag`, which is trimmed, cannot join `present`.
Refusal Check(const QString& tag, const QStringList& present);

} // namespace TagRules
