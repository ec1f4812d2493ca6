#pragma once

#include "AgentServer.h"

#include <QDir>
#include <functional>
#include <string>
#include <vector>

class WebService;
struct FileInfoParams;

/// The commands with which an administrator's messages, files, clock and wallpaper are sent. A message is an
/// operation with a number of its own, by which it is withdrawn.
class MessageCommands {
public:
    /// `parse` takes the text behind the name and the folder in which files are looked for, and returns what
    /// is to be done; it throws std::invalid_argument.
    struct Command {
        std::string name;
        std::string arguments;
        std::string help;
        std::function<std::function<void()>(const std::string& text, const QDir& folder)> parse;
    };

    /// `web` may be null: then no files are sent.
    MessageCommands(AgentServer& server, EventLog& log, WebService* web)
        : m_server(server), m_log(log), m_web(web) {}

    std::vector<Command> All();

private:
    template <class Request>
    void Send(Request& request);
    std::function<void()> ParseFile(const std::string& text, const QDir& folder, bool isPicture);
    FileInfoParams Offer(const QString& path, const std::string& name);

    AgentServer& m_server;
    EventLog& m_log;
    WebService* m_web;
    int m_lastOperation = 0;
};
