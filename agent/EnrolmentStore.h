#pragma once

#include <QString>
#include <optional>
#include <string>
#include <vector>

/// What an enrolment is made of.
struct Enrolment {
    std::string code;
    std::string account;
    std::string name;
    std::vector<std::string> tags;
    std::vector<std::string> permissions;
};

/// The enrolment in the agent platform's configuration file, from where it is known again after a start.
class EnrolmentStore {
public:
    /// Nothing when the device is not enrolled.
    static std::optional<Enrolment> Read();

    /// Writes the enrolment, or that there is none, and leaves all other keys of the file as they are.
    /// Returns what went wrong, or an empty text.
    static QString Write(const std::optional<Enrolment>& enrolment);
};
