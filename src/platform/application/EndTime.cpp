#include "platform/application/EndTime.h"

#include <QLocale>
#include <regex>

std::optional<EndTime> EndTime::Parse(const std::string& text) {
    static const std::regex timeOfDay("([01][0-9]|2[0-3]):[0-5][0-9]");
    if (!text.empty() && !std::regex_match(text, timeOfDay))
        return std::nullopt;
    EndTime end;
    end.m_text = text;
    return end;
}

// As text, and with the digits of the wire: some locales have digits of their own.
bool EndTime::HasPassed(const Clock& clock) const {
    return IsSet() && QLocale::c().toString(clock.Now(), QStringLiteral("HH:mm")).toStdString() >= m_text;
}
