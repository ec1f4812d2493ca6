#pragma once

#include "AgentPopups.h"
#include "AgentService.h"
#include "AgentSettings.h"
#include "AgentUpdates.h"
#include "Command.h"
#include "WebCommands.h"

#include <QDir>
#include <QObject>
#include <istream>
#include <list>
#include <string>
#include <utility>

class AgentEnrolment;

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
    using Message = std::pair<PipeKey, std::string>;

    void AddCommands(const Commands& commands);
    void AddSendingCommands();
    void AddExpectations();
    void AddOtherCommands();
    Step Parse(const std::string& line) const;
    Step ParseWait(const std::string& arguments);
    Message ParseMessage(const std::string& arguments) const;
    void Keep(PipeKey key, const std::string& body);
    bool TakeMessage(PipeKey key, const std::string& part);
    void TellClients() const;
    void TellHelp() const;

    AgentServer& m_server;
    AgentService& m_service;
    EventLog& m_log;
    AgentPopups m_popups;
    AgentUpdates m_updates;
    AgentSettings m_settings;
    WebCommands m_web;
    StepPlayer m_player;
    Commands m_commands;
    QDir m_folder{QStringLiteral(".")}; // in which the line that is read looks for files
    std::list<Message> m_messages;      // arrived, and used by no expectation yet
};
