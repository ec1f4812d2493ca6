#pragma once

#include "platform/application/Clock.h"

#include <optional>
#include <string>

/// The time of day at which a lock ends by itself. Comparisons never cross midnight: an end at 00:30 has
/// passed at 23:50.
class EndTime {
public:
    /// No end.
    EndTime() = default;

    /// Reads "HH:mm"; an empty text is no end. Nothing for every other text.
    static std::optional<EndTime> Parse(const std::string& text);

    bool IsSet() const { return !m_text.empty(); }
    /// "HH:mm"; empty when it is not set.
    const std::string& Text() const { return m_text; }

    /// Whether it is set, and the clock shows it or a later time of day.
    bool HasPassed(const Clock& clock) const;

private:
    std::string m_text;
};
