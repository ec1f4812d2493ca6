#include "CommandInterpreter.h"

#include "EnrolmentCommands.h"
#include "KeyText.h"
#include "MessageCommands.h"
#include "PopupCommands.h"
#include "SettingsCommands.h"
#include "UpdateCommands.h"
#include "platform/application/EndTime.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <regex>
#include <stdexcept>

namespace {

constexpr std::size_t KeptMessages = 1000;

PipeKey KeyOf(const std::string& text) {
    const std::optional<PipeKey> key = ParseKey(text);
    if (!key)
        Refuse("wants a key, by number or name, instead of \"" + text + '"');
    return *key;
}

std::string Digits(const std::string& text) {
    static const std::regex sixDigits("[0-9]{6}");
    if (!std::regex_match(text, sixDigits))
        Refuse("wants six digits");
    return text;
}

std::string TimeOfDay(const std::string& text) {
    if (!EndTime::Parse(text))
        Refuse("wants no argument or a time of day as HH:mm");
    return text;
}

int Status(const std::string& text) {
    static const std::vector<std::pair<std::string, IotStatus>> names = {
        {"not-enrolled", IotStatus::NotEnrolled},
        {"connected", IotStatus::Connected},
        {"disconnected", IotStatus::Disconnected},
        {"connecting", IotStatus::Connecting},
    };
    for (const auto& [name, status] : names)
        if (text == name)
            return static_cast<int>(status);
    static const std::regex number("[0-9]{1,9}");
    if (!std::regex_match(text, number))
        Refuse("wants not-enrolled, connected, disconnected, connecting or a number");
    return std::stoi(text);
}

std::string Bytes(const std::string& text) {
    std::string digits = text;
    digits.erase(std::remove(digits.begin(), digits.end(), ' '), digits.end());
    static const std::regex pairs("([0-9a-fA-F]{2})+");
    if (!std::regex_match(digits, pairs))
        Refuse("wants bytes as pairs of hexadecimal digits");
    std::string bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2)
        bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
    return bytes;
}

/// The body that `text` stands for: a file's bytes behind `@`, otherwise itself; `@@` begins it with an `@`.
std::string Body(const std::string& text, const QDir& folder) {
    const bool marked = text.rfind('@', 0) == 0;
    std::string body = marked ? text.substr(1) : text;
    if (marked && body.rfind('@', 0) != 0) {
        QFile file(folder.filePath(QString::fromStdString(body)));
        if (!file.open(QIODevice::ReadOnly))
            Refuse("cannot read \"" + body + "\": " + file.errorString().toStdString());
        body = file.read(RyxPackage::MaxBodySize + 1).toStdString();
    }
    if (body.size() > RyxPackage::MaxBodySize)
        Refuse("wants a body of at most " + std::to_string(RyxPackage::MaxBodySize) + " bytes");
    return body;
}

} // namespace

CommandInterpreter::CommandInterpreter(AgentServer& server, AgentService& service, AgentEnrolment& enrolment,
                                       EventLog& log, WebService* web)
    : m_server(server),
      m_service(service),
      m_log(log),
      m_popups(server, service, log),
      m_updates(server, service),
      m_settings(server, log),
      m_web(web),
      m_player(log) {
    AddSendingCommands();
    AddCommands(EnrolmentCommands(enrolment));
    AddCommands(MessageCommands(server, log, web, m_folder));
    AddCommands(PopupCommands(m_popups, m_folder));
    AddCommands(UpdateCommands(m_updates));
    AddCommands(SettingsCommands(m_settings));
    AddExpectations();
    AddCommands(m_web.List());
    AddOtherCommands();
    connect(&m_player, &StepPlayer::Idle, this, &CommandInterpreter::Idle);
    connect(&m_server, &AgentServer::MessageReceived, this, [this](PipeKey key, const std::string& body) {
        Keep(key, body);
        m_player.Play();
    });
    connect(&m_server, &AgentServer::ClientConnected, &m_player, &StepPlayer::Play);
    connect(&m_server, &AgentServer::ClientGone, &m_player, &StepPlayer::Play);
    connect(&m_web, &WebCommands::Requested, &m_player, &StepPlayer::Play);
}

void CommandInterpreter::AddCommands(const Commands& commands) {
    m_commands.insert(m_commands.end(), commands.begin(), commands.end());
}

void CommandInterpreter::AddSendingCommands() {
    AddCommands({{"lock", "[HH:mm]", "lock the screen, until that time of day when one is given",
                  [this](const std::string& arguments) {
                      return Act([this, end = TimeOfDay(arguments)] { m_service.Lock(end); });
                  }},
                 {"unlock", "", "release the lock (35 ScreenUnlock)",
                  [this](const std::string& arguments) {
                      RefuseArguments(arguments);
                      return Act([this] { m_service.ReleaseLock(PipeKey::ScreenUnlock); });
                  }},
                 {"reset", "", "release the lock and forget its end time (34 ScreenLockReset)",
                  [this](const std::string& arguments) {
                      RefuseArguments(arguments);
                      return Act([this] { m_service.ReleaseLock(PipeKey::ScreenLockReset); });
                  }},
                 {"settings-lock", "", "lock the system's settings (78 SettingsLockShow)",
                  [this](const std::string& arguments) {
                      RefuseArguments(arguments);
                      return Act([this] { m_service.LockSettings(true); });
                  }},
                 {"settings-unlock", "", "take the mask of the settings away (80 SettingsLockHide)",
                  [this](const std::string& arguments) {
                      RefuseArguments(arguments);
                      return Act([this] { m_service.LockSettings(false); });
                  }},
                 {"control-panel", "", "have the Control Panel end with its window (81 ControllExit)",
                  [this](const std::string& arguments) {
                      RefuseArguments(arguments);
                      return Act([this] { m_server.Send(PipeKey::ControllExit, {}); });
                  }},
                 {"status", "STATE",
                  "tell the link's status: not-enrolled, connected, disconnected, connecting or a number",
                  [this](const std::string& arguments) {
                      return Act([this, status = Status(arguments)] { m_service.SetStatus(status); });
                  }},
                 {"password", "DIGITS", "set the six digits that unlock the screen",
                  [this](const std::string& arguments) {
                      return Act([this, digits = Digits(arguments)] { m_service.SetUnlockPassword(digits); });
                  }},
                 {"unbind-password", "DIGITS", "set the six digits that allow an unenrolment",
                  [this](const std::string& arguments) {
                      return Act([this, digits = Digits(arguments)] { m_service.SetUnbindPassword(digits); });
                  }},
                 {"context", "TEXT", "answer the next questions for the context with this text",
                  [this](const std::string& arguments) {
                      return Act([this, arguments] {
                          m_service.SetAnswer(PipeKey::ContextRequest, PipeKey::ContextReply, arguments);
                      });
                  }},
                 {"send", "KEY [BODY|@FILE]", "send any message; the key by number or name",
                  [this](const std::string& arguments) {
                      return Act([this, message = ParseMessage(arguments)] {
                          m_server.Send(message.first, message.second);
                      });
                  }},
                 {"on", "KEY send KEY [BODY|@FILE]", "answer every message that comes with the first key",
                  [this](const std::string& arguments) {
                      const auto [question, rest] = SplitFirst(arguments);
                      const auto [send, answer] = SplitFirst(rest);
                      if (send != "send")
                          Refuse("wants KEY send KEY");
                      return Act([this, key = KeyOf(question), message = ParseMessage(answer)] {
                          m_service.SetAnswer(key, message.first, message.second);
                      });
                  }},
                 {"raw", "HEX", "send bytes as they stand, such as half a frame",
                  [this](const std::string& arguments) {
                      return Act([this, bytes = Bytes(arguments)] { m_server.SendBytes(bytes); });
                  }}});
}

void CommandInterpreter::AddExpectations() {
    AddCommands(
        {{"wait", "KEY [SECONDS [TEXT]]", "until such a message, containing TEXT, has come (at most 10 s)",
          [this](const std::string& arguments) { return ParseWait(arguments); }},
         {"absent", "KEY", "fail if such a message has come that no wait has used",
          [this](const std::string& arguments) {
              return Expect(0, [this, key = KeyOf(arguments)] {
                  return std::none_of(m_messages.begin(), m_messages.end(),
                                      [key](const Message& message) { return message.first == key; });
              });
          }},
         {"forget", "", "forget every message that has come",
          [this](const std::string& arguments) {
              RefuseArguments(arguments);
              return Act([this] { m_messages.clear(); });
          }},
         {"wait-client", "[SECONDS]", "until a front end is connected (at most 10 s)",
          [this](const std::string& arguments) {
              return Expect(Seconds(arguments, DefaultWaitSeconds),
                            [this] { return !m_server.Clients().empty(); });
          }},
         {"wait-gone", "[SECONDS]", "until no front end is connected (at most 10 s)",
          [this](const std::string& arguments) {
              return Expect(Seconds(arguments, DefaultWaitSeconds),
                            [this] { return m_server.Clients().empty(); });
          }},
         {"pause", "SECONDS", "wait so long", [](const std::string& arguments) {
              Step step = Expect(Seconds(arguments, 1), [] { return false; });
              step.mayExpire = true;
              return step;
          }}});
}

void CommandInterpreter::AddOtherCommands() {
    AddCommands({{"say", "TEXT", "print the text",
                  [this](const std::string& arguments) {
                      return Act([this, arguments] { m_log.Line("say " + arguments); });
                  }},
                 {"clients", "", "list the connected front ends",
                  [this](const std::string& arguments) {
                      RefuseArguments(arguments);
                      return Act([this] { TellClients(); });
                  }},
                 {"drop", "", "end every connection; front ends come back by themselves",
                  [this](const std::string& arguments) {
                      RefuseArguments(arguments);
                      return Act([this] { m_server.DropClients(); });
                  }},
                 {"bodies", "on|off", "show the bodies of messages that come, or only their sizes",
                  [this](const std::string& arguments) {
                      if (arguments != "on" && arguments != "off")
                          Refuse("wants on or off");
                      return Act([this, show = arguments == "on"] { m_server.ShowBodies(show); });
                  }},
                 {"help", "", "list the commands",
                  [this](const std::string& arguments) {
                      RefuseArguments(arguments);
                      return Act([this] { TellHelp(); });
                  }},
                 {"quit", "", "end the agent service", [this](const std::string& arguments) {
                      RefuseArguments(arguments);
                      return Act([this] {
                          m_player.Stop();
                          emit Quit();
                      });
                  }}});
}

void CommandInterpreter::Add(const std::string& line) {
    const std::string text = Trimmed(line);
    if (text.empty() || text.front() == '#')
        return;
    try {
        m_player.Add(Parse(text));
    } catch (const std::invalid_argument& error) {
        m_log.Line(std::string("error: ") + error.what());
    }
    m_player.Play();
}

bool CommandInterpreter::AddScenario(std::istream& lines, const QString& path) {
    const QDir console = std::exchange(m_folder, QFileInfo(path).dir());
    std::vector<Step> steps;
    bool understood = true;
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        const std::string text = Trimmed(line);
        if (text.empty() || text.front() == '#')
            continue;
        const std::string place = path.toStdString() + ':' + std::to_string(number) + ": ";
        try {
            steps.push_back(Parse(text));
            steps.back().text.insert(0, place);
            steps.back().inScenario = true;
        } catch (const std::invalid_argument& error) {
            m_log.Line("error: " + place + error.what());
            understood = false;
        }
    }
    m_folder = console;
    for (Step& step : steps)
        if (understood)
            m_player.Add(std::move(step));
    return understood;
}

Step CommandInterpreter::Parse(const std::string& line) const {
    const auto words = SplitFirst(line);
    const auto& [name, arguments] = words;
    const auto command = std::find_if(m_commands.begin(), m_commands.end(), [&](const Command& candidate) {
        return candidate.name == words.first;
    });
    if (command == m_commands.end())
        Refuse("\"" + name + "\" is no command; help lists them");
    try {
        Step step = command->parse(arguments);
        step.text = line;
        return step;
    } catch (const std::invalid_argument& error) {
        Refuse(name + ' ' + error.what());
    }
}

Step CommandInterpreter::ParseWait(const std::string& arguments) {
    const auto [keyText, rest] = SplitFirst(arguments);
    const auto [secondsText, part] = SplitFirst(rest);
    return Expect(Seconds(secondsText, DefaultWaitSeconds),
                  [this, key = KeyOf(keyText), text = part] { return TakeMessage(key, text); });
}

CommandInterpreter::Message CommandInterpreter::ParseMessage(const std::string& arguments) const {
    const auto [key, body] = SplitFirst(arguments);
    return {KeyOf(key), Body(body, m_folder)};
}

void CommandInterpreter::Keep(PipeKey key, const std::string& body) {
    m_messages.emplace_back(key, body);
    if (m_messages.size() > KeptMessages)
        m_messages.pop_front();
}

bool CommandInterpreter::TakeMessage(PipeKey key, const std::string& part) {
    const auto found = std::find_if(m_messages.begin(), m_messages.end(), [&](const Message& message) {
        return message.first == key && message.second.find(part) != std::string::npos;
    });
    if (found == m_messages.end())
        return false;
    m_messages.erase(found);
    return true;
}

void CommandInterpreter::TellClients() const {
    const std::vector<int> clients = m_server.Clients();
    m_log.Line("clients: " + std::to_string(clients.size()));
    for (const int client : clients)
        m_log.Line("client " + std::to_string(client) + " is connected");
}

void CommandInterpreter::TellHelp() const {
    constexpr std::size_t column = 28;
    for (const Command& command : m_commands) {
        std::string usage = "  " + command.name + ' ' + command.arguments;
        usage.resize(std::max(column, usage.size() + 1), ' ');
        m_log.Line(usage + command.help);
    }
}
