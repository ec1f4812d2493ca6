#include "CommandInterpreter.h"

#include "KeyText.h"
#include "platform/application/EndTime.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace {

constexpr std::size_t KeptMessages = 1000;
constexpr double DefaultWaitSeconds = 10;
constexpr double LongestWaitSeconds = 24 * 60 * 60;

std::string Trimmed(const std::string& text) {
    static const char blanks[] = " \t\r\n";
    const auto begin = text.find_first_not_of(blanks);
    if (begin == std::string::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

/// The first word and what follows it.
std::pair<std::string, std::string> SplitFirst(const std::string& text) {
    const auto end = text.find_first_of(" \t");
    if (end == std::string::npos)
        return {text, {}};
    return {text.substr(0, end), Trimmed(text.substr(end))};
}

[[noreturn]] void Refuse(const std::string& reason) {
    throw std::invalid_argument(reason);
}

void RefuseArguments(const std::string& arguments) {
    if (!arguments.empty())
        Refuse("takes no arguments");
}

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

double Seconds(const std::string& text, double missing) {
    if (text.empty())
        return missing;
    char* end = nullptr;
    const double seconds = std::strtod(text.c_str(), &end);
    if (*end != '\0' || !(seconds >= 0 && seconds <= LongestWaitSeconds))
        Refuse("wants seconds, at most a day, instead of \"" + text + '"');
    return seconds;
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

WebFault Fault(const std::string& text) {
    static const std::map<std::string, WebFault::Kind> kinds = {
        {"ok", WebFault::None},     {"slow", WebFault::Slow},   {"drip", WebFault::Drip},
        {"half", WebFault::Half},   {"wrong", WebFault::Wrong}, {"empty", WebFault::Empty},
        {"gone", WebFault::Gone},   {"large", WebFault::Large}, {"redirect", WebFault::Redirect},
        {"answer", WebFault::Text}, {"huge", WebFault::Huge}};
    static const std::regex status("[45][0-9]{2}");
    const auto [name, value] = SplitFirst(text);
    WebFault fault;
    if (const auto kind = kinds.find(name); kind != kinds.end())
        fault.kind = kind->second;
    else if (std::regex_match(name, status))
        fault = {WebFault::Status, 0, std::stoi(name), {}};
    else
        Refuse("wants a fault instead of \"" + name + '"');
    if (fault.kind == WebFault::Redirect || fault.kind == WebFault::Text)
        fault.text = value;
    else if (fault.kind == WebFault::Half && (value == "once" || value == "anew"))
        fault.text = value;
    else if (fault.kind == WebFault::Slow || fault.kind == WebFault::Drip)
        fault.seconds = Seconds(value, 1);
    else
        RefuseArguments(value);
    return fault;
}

std::vector<std::string> Words(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

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

Step Act(std::function<void()> act) {
    Step step;
    step.act = std::move(act);
    return step;
}

Step Expect(double seconds, std::function<bool()> isMet) {
    Step step;
    step.seconds = seconds;
    step.isMet = std::move(isMet);
    return step;
}

} // namespace

CommandInterpreter::CommandInterpreter(AgentServer& server, AgentService& service, AgentEnrolment& enrolment,
                                       EventLog& log, WebService* web)
    : m_server(server),
      m_service(service),
      m_enrolment(enrolment),
      m_log(log),
      m_web(web),
      m_messageCommands(server, log, web),
      m_player(log) {
    AddSendingCommands();
    AddEnrolmentCommands();
    for (const MessageCommands::Command& command : m_messageCommands.All())
        m_commands.push_back(
            {command.name, command.arguments, command.help,
             [this, command](const std::string& text) { return Act(command.parse(text, m_folder)); }});
    AddExpectations();
    AddWebCommands();
    AddOtherCommands();
    connect(&m_player, &StepPlayer::Idle, this, &CommandInterpreter::Idle);
    connect(&m_server, &AgentServer::MessageReceived, this, [this](PipeKey key, const std::string& body) {
        Keep(key, body);
        m_player.Play();
    });
    connect(&m_server, &AgentServer::ClientConnected, &m_player, &StepPlayer::Play);
    connect(&m_server, &AgentServer::ClientGone, &m_player, &StepPlayer::Play);
    if (m_web)
        connect(
            m_web, &WebService::Requested, this,
            [this](const QString& endpoint) {
                m_webRequests.insert(endpoint.toStdString());
                m_player.Play();
            },
            Qt::QueuedConnection);
}

void CommandInterpreter::AddSendingCommands() {
    m_commands.insert(
        m_commands.end(),
        {{"lock", "[HH:mm]", "lock the screen, until that time of day when one is given",
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
         {"update", "[VERSION]", "offer this version as an update, or none",
          [this](const std::string& arguments) {
              return Act([this, arguments] { m_service.SetUpdate(arguments); });
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

void CommandInterpreter::AddEnrolmentCommands() {
    using Mode = AgentEnrolment::Mode;
    m_commands.insert(
        m_commands.end(),
        {{"accept", "CODE ACCOUNT [PERMISSION...]",
          "let requests to enrol with this code and account succeed",
          [this](const std::string& arguments) {
              return Act([this, whose = WhoseOf(arguments)] {
                  m_enrolment.Accept(whose.code, whose.account, Words(whose.rest));
              });
          }},
         {"binding", "normal|silent|fail CODE", "how requests to enrol and unenrol are answered from now on",
          [this](const std::string& arguments) {
              const auto [how, code] = SplitFirst(arguments);
              const bool fails = how == "fail";
              if ((!fails && how != "normal" && how != "silent") || fails == code.empty())
                  Refuse("wants normal, silent or fail CODE");
              const Mode mode = fails ? Mode::Fail : how == "silent" ? Mode::Silent : Mode::Normal;
              return Act([this, mode, failure = code] { m_enrolment.SetMode(mode, failure); });
          }},
         {"binding-delay", "SECONDS", "the time between such a request and its answer",
          [this](const std::string& arguments) {
              return Act([this, seconds = Seconds(arguments, 0)] { m_enrolment.SetDelay(seconds); });
          }},
         {"auto-enrol", "CODE ACCOUNT [NAME]", "enrol the device by itself (9 AutoEnroll)",
          [this](const std::string& arguments) {
              return Act([this, whose = WhoseOf(arguments)] {
                  m_enrolment.Enrol({whose.code, whose.account, whose.rest, {}, {}});
              });
          }},
         {"unenrol", "", "unenrol the device by itself (4 DeviceUnenrolled)",
          [this](const std::string& arguments) {
              RefuseArguments(arguments);
              return Act([this] { m_enrolment.Unenrol(); });
          }},
         {"device-name", "NAME", "rename the device (5 DeviceNameChanged)",
          [this](const std::string& arguments) {
              return Act([this, arguments] { m_enrolment.SetName(arguments); });
          }},
         {"device-tags", "[TAG, TAG...]", "set the device's tags (6 DeviceTagsChanged)",
          [this](const std::string& arguments) {
              return Act([this, tags = Tags(arguments)] { m_enrolment.SetTags(tags); });
          }},
         {"account", "ACCOUNT", "set the administrator's account (7 AdminAccountChanged)",
          [this](const std::string& arguments) {
              return Act([this, arguments] { m_enrolment.SetAccount(arguments); });
          }}});
}

void CommandInterpreter::AddExpectations() {
    m_commands.insert(
        m_commands.end(),
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

void CommandInterpreter::AddWebCommands() {
    m_commands.insert(
        m_commands.end(),
        {{"web", "ENDPOINT FAULT [VALUE]",
          "what the web service does wrong: ok, slow S, drip S, 400 to 599, half [once|anew], wrong, empty, "
          "large, huge, redirect [URL], gone, answer TEXT",
          [this](const std::string& arguments) {
              const auto [endpoint, fault] = SplitFirst(arguments);
              return Act(
                  [this, name = WebEndpoint(endpoint), what = Fault(fault)] { m_web->SetFault(name, what); });
          }},
         {"web-upload", "put|form [no-notice]", "how the file store wants its files; with a notice otherwise",
          [this](const std::string& arguments) {
              const auto [way, notice] = SplitFirst(arguments);
              if (!m_web || (way != "put" && way != "form") || (!notice.empty() && notice != "no-notice"))
                  Refuse("wants ryx-agent --web, and put or form");
              return Act([this, manner = UploadManner{way == "form", notice.empty()}] {
                  m_web->Store().SetManner(manner);
              });
          }},
         {"wait-web", "ENDPOINT [SECONDS]", "until the web service was asked there (at most 10 s)",
          [this](const std::string& arguments) {
              const auto [endpoint, seconds] = SplitFirst(arguments);
              return Expect(Seconds(seconds, DefaultWaitSeconds), [this, name = WebEndpoint(endpoint)] {
                  const auto found = m_webRequests.find(name);
                  if (found == m_webRequests.end())
                      return false;
                  m_webRequests.erase(found);
                  return true;
              });
          }}});
}

void CommandInterpreter::AddOtherCommands() {
    m_commands.insert(m_commands.end(),
                      {{"say", "TEXT", "print the text",
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

std::string CommandInterpreter::WebEndpoint(const std::string& name) const {
    const std::vector<std::string>& names = WebService::Endpoints();
    if (!m_web)
        Refuse("wants ryx-agent --web");
    if (std::find(names.begin(), names.end(), name) == names.end())
        Refuse("wants an endpoint instead of \"" + name + '"');
    return name;
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
