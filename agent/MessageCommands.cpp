#include "MessageCommands.h"

#include "EventLog.h"
#include "WebService.h"
#include "entity/FileEntities.h"
#include "entity/SettingsEntities.h"

#include <QFileInfo>
#include <regex>
#include <stdexcept>
#include <tuple>

namespace {

/// A number of at most six digits.
int Number(const std::string& text, const char* wanted) {
    static const std::regex digits("[0-9]{1,6}");
    if (!std::regex_match(text, digits))
        throw std::invalid_argument(wanted);
    return std::stoi(text);
}

std::string Text(const std::string& text) {
    if (text.empty())
        throw std::invalid_argument("wants a text");
    return text;
}

} // namespace

template <class Request>
void MessageCommands::Send(Request& request) {
    request.operationId = ++m_lastOperation;
    m_log.Line("message " + std::to_string(request.operationId));
    m_server.Send(PipeKey::MessageFile, request.WriteToString());
}

FileInfoParams MessageCommands::Offer(const QString& path, const std::string& name) {
    FileInfoParams file;
    file.name = name;
    if (const auto offered = m_web->Offer(path, name))
        std::tie(file.url, file.md5) = *offered;
    else
        m_log.Line("error: cannot offer " + path.toStdString());
    return file;
}

std::function<void()> MessageCommands::ParseFile(const std::string& text, const QDir& folder,
                                                 bool isPicture) {
    const auto blank = text.find_first_of(" \t");
    const QString path = folder.filePath(QString::fromStdString(text.substr(0, blank)));
    const auto behind = blank == std::string::npos ? blank : text.find_first_not_of(" \t", blank);
    const std::string name =
        behind == std::string::npos ? QFileInfo(path).fileName().toStdString() : text.substr(behind);
    if (!m_web)
        throw std::invalid_argument("wants ryx-agent --web");
    if (!QFileInfo(path).isFile())
        throw std::invalid_argument("wants a file instead of \"" + path.toStdString() + '"');
    return [this, path, name, isPicture] {
        if (isPicture) {
            MultimediaDataRequest request;
            request.jobStatus = request.operationRight = true;
            request.fileInfoParams = Offer(path, name);
            Send(request);
        } else {
            FileDataRequest request;
            request.fileInfoParams = Offer(path, name);
            Send(request);
        }
    };
}

std::vector<MessageCommands::Command> MessageCommands::All() {
    return {{"message", "TEXT", "show a text (44 MessageFile)",
             [this](const std::string& text, const QDir&) {
                 return [this, words = Text(text)] {
                     TextDataRequest request;
                     request.jobStatus = request.operationRight = true;
                     request.text = words;
                     Send(request);
                 };
             }},
            {"emergency", "TEXT", "show an emergency (44 MessageFile)",
             [this](const std::string& text, const QDir&) {
                 return [this, words = Text(text)] {
                     EmergencyDataRequest request;
                     request.text = words;
                     Send(request);
                 };
             }},
            {"file", "FILE [NAME]", "send a file by the web service (44 MessageFile)",
             [this](const std::string& text, const QDir& folder) { return ParseFile(text, folder, false); }},
            {"picture", "FILE [NAME]", "show a picture by the web service (44 MessageFile)",
             [this](const std::string& text, const QDir& folder) { return ParseFile(text, folder, true); }},
            {"withdraw", "[NUMBER]", "take the message with this number back, or the last one",
             [this](const std::string& text, const QDir&) {
                 const int number = text.empty() ? 0 : Number(text, "wants a message's number");
                 return [this, number] {
                     TextDataRequest request;
                     request.operationId = number ? number : m_lastOperation;
                     m_server.Send(PipeKey::MessageFile, request.WriteToString());
                 };
             }},
            {"clock", "12|24", "set the clock's hour format (69 TimeFormatSetting)",
             [this](const std::string& text, const QDir&) {
                 if (text != "12" && text != "24")
                     throw std::invalid_argument("wants 12 or 24");
                 return [this, format = text == "12" ? 0 : 1] {
                     HourFormatSettingProperty property;
                     property.hourFormatSetting = format;
                     m_server.Send(PipeKey::TimeFormatSetting, property.WriteToString());
                 };
             }},
            {"wallpaper", "[fit|center|fill [PATH]]",
             "show this picture of the device as wallpaper, or the default one (82 WallpaperSetting)",
             [this](const std::string& text, const QDir&) {
                 static const std::regex words("((fit|center|fill)([ \t]+(.*))?)?");
                 std::smatch match;
                 if (!std::regex_match(text, match, words))
                     throw std::invalid_argument("wants fit, center or fill, and a path");
                 BootLogoDataRequest request;
                 request.displayMode = match[2] == "fit" ? 1 : match[2] == "center" ? 2 : 0;
                 request.fileInfoParams.path = match[4];
                 return [this, body = request.WriteToString()] {
                     m_server.Send(PipeKey::WallpaperSetting, body);
                 };
             }}};
}
