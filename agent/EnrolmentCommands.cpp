#include "EnrolmentCommands.h"

#include "AgentEnrolment.h"

#include <sstream>

namespace {

/// Tags, with commas between them.
std::vector<std::string> Tags(const std::string& text) {
    std::vector<std::string> tags;
    std::istringstream stream(text);
    for (std::string tag; std::getline(stream, tag, ',');)
        tags.push_back(Trimmed(tag));
    return tags;
}

/// A code, an account and what stands behind them.
struct Whose {
    std::string code, account, rest;
};
Whose WhoseOf(const std::string& text) {
    const auto [code, behind] = SplitFirst(text);
    const auto [account, rest] = SplitFirst(behind);
    if (account.empty())
        Refuse("wants a code and an account");
    return {code, account, rest};
}

} // namespace

Commands EnrolmentCommands(AgentEnrolment& enrolment) {
    using Mode = AgentEnrolment::Mode;
    return {
        {"accept", "CODE ACCOUNT [PERMISSION...]", "let requests to enrol with this code and account succeed",
         [&enrolment](const std::string& arguments) {
             return Act([&enrolment, whose = WhoseOf(arguments)] {
                 enrolment.Accept(whose.code, whose.account, Words(whose.rest));
             });
         }},
        {"binding", "normal|silent|fail CODE", "how requests to enrol and unenrol are answered from now on",
         [&enrolment](const std::string& arguments) {
             const auto [how, code] = SplitFirst(arguments);
             const bool fails = how == "fail";
             if ((!fails && how != "normal" && how != "silent") || fails == code.empty())
                 Refuse("wants normal, silent or fail CODE");
             const Mode mode = fails ? Mode::Fail : how == "silent" ? Mode::Silent : Mode::Normal;
             return Act([&enrolment, mode, failure = code] { enrolment.SetMode(mode, failure); });
         }},
        {"binding-delay", "SECONDS", "the time between such a request and its answer",
         [&enrolment](const std::string& arguments) {
             return Act([&enrolment, seconds = Seconds(arguments, 0)] { enrolment.SetDelay(seconds); });
         }},
        {"auto-enrol", "CODE ACCOUNT [NAME]", "enrol the device by itself (9 AutoEnroll)",
         [&enrolment](const std::string& arguments) {
             return Act([&enrolment, whose = WhoseOf(arguments)] {
                 enrolment.Enrol({whose.code, whose.account, whose.rest, {}, {}});
             });
         }},
        {"unenrol", "", "unenrol the device by itself (4 DeviceUnenrolled)",
         [&enrolment](const std::string& arguments) {
             RefuseArguments(arguments);
             return Act([&enrolment] { enrolment.Unenrol(); });
         }},
        {"device-name", "NAME", "rename the device (5 DeviceNameChanged)",
         [&enrolment](const std::string& arguments) {
             return Act([&enrolment, arguments] { enrolment.SetName(arguments); });
         }},
        {"device-tags", "[TAG, TAG...]", "set the device's tags (6 DeviceTagsChanged)",
         [&enrolment](const std::string& arguments) {
             return Act([&enrolment, tags = Tags(arguments)] { enrolment.SetTags(tags); });
         }},
        {"account", "ACCOUNT", "set the administrator's account (7 AdminAccountChanged)",
         [&enrolment](const std::string& arguments) {
             return Act([&enrolment, arguments] { enrolment.SetAccount(arguments); });
         }}};
}
