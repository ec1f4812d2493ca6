#pragma once

#include "AgentEnrolment.h"
#include "AgentService.h"
#include "MessageCommands.h"
#include "StepPlayer.h"
#include "WebService.h"

#include <QDir>
#include <QObject>
#include <functional>
#include <istream>
#include <list>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// Understands and carries out the commands of the console and of scenario files, in the order given:
/// most at once, those that wait when what they wait for has come or their time is over.
/// docs/scenarios.md tells what each command does.
class CommandInterpreter : public QObject {
    Q_OBJECT

public:
    /// `web` may be null: then its commands are refused.
    CommandInterpreter(AgentServer& server, AgentService& service, AgentEnrolment& enrolment, EventLog& log,
                       WebService* web = nullptr);

    /// Takes one line of the console. A line that is not understood is told and does nothing.
    void Add(const std::string& line);

    /// Takes a scenario, one command on a line; it ends at the first expectation that is not met. When a
    /// line is not understood, each such line is told with `path` and its number, nothing is carried out,
    /// and the result is false. The files that it names are looked for beside `path`.
    bool AddScenario(std::istream& lines, const QString& path);

    /// Begins with what was added; goes on by itself.
    void Play() { m_player.Play(); }

    /// False once an expectation was not met.
    bool AllMet() const { return m_player.AllMet(); }

signals:
    /// There is nothing left to carry out.
    void Idle();
    /// The command to end the agent service.
    void Quit();

private:
    /// `parse` makes a step of the text behind the name, or throws std::invalid_argument.
    struct Command {
        std::string name;
        std::string arguments;
        std::string help;
        std::function<Step(const std::string& arguments)> parse;
    };
    using Message = std::pair<PipeKey, std::string>;

    void AddSendingCommands();
    void AddEnrolmentCommands();
    void AddExpectations();
    void AddWebCommands();
    void AddOtherCommands();
    Step Parse(const std::string& line) const;
    Step ParseWait(const std::string& arguments);
    Message ParseMessage(const std::string& arguments) const;
    void Keep(PipeKey key, const std::string& body);
    bool TakeMessage(PipeKey key, const std::string& part);
    std::string WebEndpoint(const std::string& name) const;
    void TellClients() const;
    void TellHelp() const;

    AgentServer& m_server;
    AgentService& m_service;
    AgentEnrolment& m_enrolment;
    EventLog& m_log;
    WebService* m_web;
    MessageCommands m_messageCommands;
    StepPlayer m_player;
    std::vector<Command> m_commands;
    QDir m_folder{QStringLiteral(".")};       // in which the line that is read looks for files
    std::list<Message> m_messages;            // arrived, and used by no expectation yet
    std::multiset<std::string> m_webRequests; // endpoints asked, and used by no expectation yet
};
