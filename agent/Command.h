#pragma once

#include "StepPlayer.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// A command of the console and of scenario files.
struct Command {
    std::string name;
    std::string arguments; ///< how they are written, for the help
    std::string help;
    /// Makes a step of the text behind the name, or throws std::invalid_argument.
    std::function<Step(const std::string& arguments)> parse;
};
using Commands = std::vector<Command>;

constexpr double DefaultWaitSeconds = 10;

/// A step that is carried out at once.
Step Act(std::function<void()> act);
/// A step that waits at most so long, and fails unless `isMet` by then.
Step Expect(double seconds, std::function<bool()> isMet);

/// Throws std::invalid_argument.
[[noreturn]] void Refuse(const std::string& reason);
void RefuseArguments(const std::string& arguments);

std::string Trimmed(const std::string& text);
/// The first word and what follows it.
std::pair<std::string, std::string> SplitFirst(const std::string& text);
std::vector<std::string> Words(const std::string& text);
/// Seconds, at most a day; `missing` when the text is empty.
double Seconds(const std::string& text, double missing);
