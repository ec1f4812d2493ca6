#include "MessageCommands.h"

#include "AgentServer.h"
#include "WebService.h"
#include "entity/FileEntities.h"
#include "entity/SettingsEntities.h"

#include <QDir>
#include <QFileInfo>
#include <memory>
#include <regex>
#include <tuple>

namespace {

/// Sends messages as operations, each with a number of its own by which it can be withdrawn.
class Sender {
public:
    Sender(AgentServer& server, EventLog& log, WebService* web) : m_server(server), m_log(log), m_web(web) {}

    template <class Request>
    void Send(Request request) {
        request.operationId = ++m_lastOperation;
        m_log.Line("message " + std::to_string(request.operationId));
        m_server.Send(PipeKey::MessageFile, request.WriteToString());
    }

    /// Without a number the last one.
    void Withdraw(int number) {
        TextDataRequest request;
        request.operationId = number ? number : m_lastOperation;
        m_server.Send(PipeKey::MessageFile, request.WriteToString());
    }

    template <class Request>
    void SendFile(Request request, const QString& path, const std::string& name) {
        request.fileInfoParams.name = name;
        const auto offered = m_web->Offer(path, name);
        if (!offered) {
            m_log.Line("error: cannot offer " + path.toStdString());
            return;
        }
        std::tie(request.fileInfoParams.url, request.fileInfoParams.md5) = *offered;
        Send(request);
    }

    bool HasWeb() const { return m_web != nullptr; }

private:
    AgentServer& m_server;
    EventLog& m_log;
    WebService* m_web;
    int m_lastOperation = 0;
};

template <class Request>
Request Active() {
    Request request;
    request.jobStatus = request.operationRight = true;
    return request;
}

std::string Text(const std::string& text) {
    if (text.empty())
        Refuse("wants a text");
    return text;
}

int MessageNumber(const std::string& text) {
    static const std::regex digits("[0-9]{0,6}");
    if (!std::regex_match(text, digits))
        Refuse("wants a message's number");
    return text.empty() ? 0 : std::stoi(text);
}

template <class Request>
Step File(const std::shared_ptr<Sender>& sender, const Request& request, const std::string& arguments,
          const QDir& folder) {
    const auto [file, wanted] = SplitFirst(arguments);
    const QString path = folder.filePath(QString::fromStdString(file));
    if (!sender->HasWeb())
        Refuse("wants ryx-agent --web");
    if (!QFileInfo(path).isFile())
        Refuse("wants a file instead of \"" + file + '"');
    const std::string name = wanted.empty() ? QFileInfo(path).fileName().toStdString() : wanted;
    return Act([=] { sender->SendFile(request, path, name); });
}

BootLogoDataRequest Wallpaper(const std::string& arguments) {
    const auto [placement, path] = SplitFirst(arguments);
    if (!placement.empty() && placement != "fit" && placement != "center" && placement != "fill")
        Refuse("wants fit, center or fill, and a path");
    BootLogoDataRequest request;
    request.displayMode = placement == "fit" ? 1 : placement == "center" ? 2 : 0;
    request.fileInfoParams.path = path;
    return request;
}

} // namespace

Commands MessageCommands(AgentServer& server, EventLog& log, WebService* web, const QDir& folder) {
    const auto sender = std::make_shared<Sender>(server, log, web);
    return {{"message", "TEXT", "show a text (44 MessageFile)",
             [sender](const std::string& arguments) {
                 auto request = Active<TextDataRequest>();
                 request.text = Text(arguments);
                 return Act([sender, request] { sender->Send(request); });
             }},
            {"emergency", "TEXT", "show an emergency (44 MessageFile)",
             [sender](const std::string& arguments) {
                 EmergencyDataRequest request;
                 request.text = Text(arguments);
                 return Act([sender, request] { sender->Send(request); });
             }},
            {"file", "FILE [NAME]", "send a file by the web service (44 MessageFile)",
             [sender, &folder](const std::string& arguments) {
                 return File(sender, FileDataRequest(), arguments, folder);
             }},
            {"picture", "FILE [NAME]", "show a picture by the web service (44 MessageFile)",
             [sender, &folder](const std::string& arguments) {
                 return File(sender, Active<MultimediaDataRequest>(), arguments, folder);
             }},
            {"withdraw", "[NUMBER]", "take the message with this number back, or the last one",
             [sender](const std::string& arguments) {
                 return Act([sender, number = MessageNumber(arguments)] { sender->Withdraw(number); });
             }},
            {"clock", "12|24", "set the clock's hour format (69 TimeFormatSetting)",
             [&server](const std::string& arguments) {
                 if (arguments != "12" && arguments != "24")
                     Refuse("wants 12 or 24");
                 HourFormatSettingProperty property;
                 property.hourFormatSetting = arguments == "12" ? 0 : 1;
                 return Act([&server, body = property.WriteToString()] {
                     server.Send(PipeKey::TimeFormatSetting, body);
                 });
             }},
            {"wallpaper", "[fit|center|fill [PATH]]",
             "set this picture of the device, or its default one, as wallpaper (82 WallpaperSetting)",
             [&server](const std::string& arguments) {
                 return Act([&server, body = Wallpaper(arguments).WriteToString()] {
                     server.Send(PipeKey::WallpaperSetting, body);
                 });
             }}};
}
