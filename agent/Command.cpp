#include "Command.h"

#include <cstdlib>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace {

constexpr double LongestWaitSeconds = 24 * 60 * 60;

} // namespace

Step Act(std::function<void()> act) {
    Step step;
    step.act = std::move(act);
    return step;
}

Step Expect(double seconds, std::function<bool()> isMet) {
    Step step;
    step.seconds = seconds;
    step.isMet = std::move(isMet);
    return step;
}

void Refuse(const std::string& reason) {
    throw std::invalid_argument(reason);
}

void RefuseArguments(const std::string& arguments) {
    if (!arguments.empty())
        Refuse("takes no arguments");
}

std::string Trimmed(const std::string& text) {
    static const char blanks[] = " \t\r\n";
    const auto begin = text.find_first_not_of(blanks);
    if (begin == std::string::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::pair<std::string, std::string> SplitFirst(const std::string& text) {
    const auto end = text.find_first_of(" \t");
    if (end == std::string::npos)
        return {text, {}};
    return {text.substr(0, end), Trimmed(text.substr(end))};
}

std::vector<std::string> Words(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

double Seconds(const std::string& text, double missing) {
    if (text.empty())
        return missing;
    char* end = nullptr;
    const double seconds = std::strtod(text.c_str(), &end);
    if (*end != '\0' || !(seconds >= 0 && seconds <= LongestWaitSeconds))
        Refuse("wants seconds, at most a day, instead of \"" + text + '"');
    return seconds;
}
