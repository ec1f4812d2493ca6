#include "UpdateCommands.h"

#include "AgentUpdates.h"

#include <map>
#include <regex>

namespace {

/// VERSION, and in any order "forced", "silent" and a size in megabytes.
OtaUpdateVersionInfo Version(const std::string& text) {
    static const std::regex number("[0-9]{1,6}");
    OtaUpdateVersionInfo version;
    for (const std::string& word : Words(text))
        if (version.versionCode.empty())
            version.versionCode = word;
        else if (word == "forced")
            version.isForceUpdate = true;
        else if (word == "silent")
            version.isSilentDownload = true;
        else if (std::regex_match(word, number))
            version.fileSize = std::int64_t{std::stoi(word)} * 1024 * 1024;
        else
            Refuse("wants VERSION [forced] [silent] [MEGABYTES]");
    if (!version.versionCode.empty()) {
        version.downloadUrl = "https://updates.example/" + version.versionCode;
        version.fileMd5 = "d41d8cd98f00b204e9800998ecf8427e";
    }
    return version;
}

AgentUpdates::Course CourseOf(const std::string& text) {
    using Course = AgentUpdates::Course;
    static const std::map<std::string, Course> courses{{"normal", Course::Normal},
                                                       {"unsized", Course::Unsized},
                                                       {"stall", Course::Stall},
                                                       {"fail", Course::Fail},
                                                       {"none", Course::None}};
    const auto course = courses.find(text);
    if (course == courses.end())
        Refuse("wants normal, unsized, stall, fail or none");
    return course->second;
}

Step Download(AgentUpdates& updates, const std::string& text) {
    static const std::regex percent("[0-9]{1,2}|100");
    if (text == "done" || text == "failed")
        return Act([&updates, success = text == "done"] { updates.TellEnd(success); });
    if (!std::regex_match(text, percent))
        Refuse("wants a number to 100, done or failed");
    return Act([&updates, number = std::stoi(text)] { updates.TellProgress(number); });
}

} // namespace

Commands UpdateCommands(AgentUpdates& updates) {
    return {
        {"update", "[VERSION [forced] [silent] [MEGABYTES]]", "offer this version as an update, or none",
         [&updates](const std::string& arguments) {
             return Act([&updates, version = Version(arguments)] { updates.Offer(version); });
         }},
        {"update-notes", "[TEXT]", "say this of the version that is offered",
         [&updates](const std::string& arguments) {
             return Act([&updates, arguments] { updates.SetNotes(arguments); });
         }},
        {"update-course", "normal|unsized|stall|fail|none", "what becomes of the user's request to update",
         [&updates](const std::string& arguments) {
             return Act([&updates, course = CourseOf(arguments)] { updates.SetCourse(course); });
         }},
        {"download", "PERCENT|done|failed", "tell how far a download is, or its end (14 OtaDownloadProgress)",
         [&updates](const std::string& arguments) { return Download(updates, arguments); }}};
}
