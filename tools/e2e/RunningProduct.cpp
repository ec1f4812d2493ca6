#include "RunningProduct.h"

#include "platform/ProductConstants.h"
#include "platform/system/SystemPipe.h"
#include "platform/system/SystemSession.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

namespace {

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

ChildProcess::Words WordsOf(const std::string& text) {
    std::istringstream stream(text);
    ChildProcess::Words words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

int CountOf(const std::string& text, const std::string& part) {
    int count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
        ++count;
    return count;
}

std::string FileOf(const Program& program) {
    const std::string chosen = Variable(program.variable);
    return chosen.empty() ? std::string(RYX_BIN_DIR "/") + program.name : chosen;
}

} // namespace

RunningProduct::RunningProduct(Desktop& desktop)
    : m_desktop(desktop),
      m_folder(QDir::tempPath() + QStringLiteral("/ryx")),
      m_launcher(WordsOf(Variable(Steering::Launcher))) {
    if (!m_folder.isValid())
        throw std::runtime_error("no temporary folder");
    // Another user's agent service must be able to put its socket here.
    const auto everybody = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther |
                           QFile::WriteOther | QFile::ExeOther;
    QFile::setPermissions(m_folder.path(), everybody);

    m_pipe = "\\\\.\\pipe\\" + m_folder.path().section(QLatin1Char('/'), -1).toStdString();
    Configure("pipeName", QString::fromStdString(m_pipe));
    Configure("agentAccount", SystemPipe::Native().CurrentAccount());
    Configure("logFolder", QString::fromStdString(PathForPrograms(Folder() + "/log")));
    Configure("dataFolder", QString::fromStdString(PathForPrograms(Folder() + "/data")));
    Configure("deviceName", QLatin1String("Room 4.12"));
    Configure("language", QLatin1String("en"));
    Configure("enrolled", true);
    Configure("schoolCode", QLatin1String("a1b2c3"));
    Configure("adminAccount", QLatin1String("admin@lakeside.example"));
}

void RunningProduct::ConfigureUnenrolled() {
    for (const char* key : {"enrolled", "schoolCode", "adminAccount"})
        Configure(key, QJsonValue());
}

RunningProduct::~RunningProduct() {
    PlugOut();
    m_frontEnd.Kill();
    if (m_agent.IsRunning()) { // what it has launched goes with it
        Tell("quit");
        WaitUntil([this] { return !m_agent.IsRunning(); }, std::chrono::seconds(5));
    }
    // Its shared memory outlives it on Linux; the folder that names it goes now.
    const SystemSession& system = SystemSession::Native();
    const QFileInfo key(system.OwnName(QString::fromLatin1(Product::ShellMarker)));
    system.ReleaseOrphanedSharedMemory(m_folder.filePath(key.fileName()));
}

std::string RunningProduct::PathForPrograms(const std::string& path) const {
    return HasLauncher() ? "Z:" + path : path;
}

RunningProduct::Words RunningProduct::Environment() const {
    // What the desktop of whoever runs this has set must not reach the programs. The time zone makes it
    // noon or a little later, so that a lock until the evening never crosses midnight.
    const std::time_t now = std::time(nullptr);
    const int hoursToNoon = 12 - static_cast<int>(now / 3600 % 24);
    Words words{"DISPLAY=" + m_desktop.Display(),
                "TMPDIR=" + Folder(),
                "XDG_RUNTIME_DIR=" + Folder(),
                "VELMORA_RYX_CONFIG=" + PathForPrograms(Folder() + "/ryx.json"),
                "TZ=RYX" + std::to_string(-hoursToNoon),
                "WAYLAND_DISPLAY",
                "SESSION_MANAGER",
                "DBUS_SESSION_BUS_ADDRESS=disabled:", // without it each program starts a bus that stays
                "XDG_SESSION_ID",
                "QT_QPA_PLATFORM",
                "QT_SCALE_FACTOR=" + std::to_string(m_scale),
                "QT_IM_MODULE",
                "XMODIFIERS"};
    words.insert(words.end(), m_variables.begin(), m_variables.end());
    return words;
}

void RunningProduct::Start(ChildProcess& process, const Program& program, const Words& arguments,
                           const std::string& errorFile, const Words& before) const {
    Words command = before;
    command.insert(command.end(), m_launcher.begin(), m_launcher.end());
    command.push_back(FileOf(program));
    command.insert(command.end(), arguments.begin(), arguments.end());
    process.Start(command, Environment(), errorFile.empty() ? errorFile : Folder() + '/' + errorFile);
}

std::string RunningProduct::Attack(const std::string& command, const std::string& title) {
    ChildProcess& attacker = m_attackers.emplace_back();
    const auto blank = command.find(' ');
    Words words{command.substr(0, blank), title};
    if (blank != std::string::npos)
        words.push_back(command.substr(blank + 1));
    Start(attacker, Steering::Attack, words);
    WaitUntil([&] { return CountOf(attacker.Output(), "done") > 0 || !attacker.IsRunning(); });
    return attacker.Output();
}

int RunningProduct::AttackersSay(const std::string& text) {
    int count = 0;
    for (ChildProcess& attacker : m_attackers)
        count += CountOf(attacker.Output(), text);
    return count;
}

bool RunningProduct::StartAgent(const Words& arguments, const Words& before) {
    WriteConfiguration();
    Words all = {"--pipe", m_pipe};
    all.insert(all.end(), arguments.begin(), arguments.end());
    Start(m_agent, Steering::Agent, all, "agent.err", before);
    m_agentRead = 0;
    return AgentSays("listening on");
}

bool RunningProduct::AgentSays(const std::string& text) {
    std::size_t found = std::string::npos;
    const bool said = WaitUntil([&] {
        const std::string& output = m_agent.Output();
        found = output.find(text, m_agentRead);
        return found != std::string::npos && output.find('\n', found) != std::string::npos;
    });
    if (said)
        m_agentRead = m_agent.Output().find('\n', found) + 1;
    return said;
}

// The front end does one after the other, and tells of a message that cannot be read.
bool RunningProduct::Order(const std::string& command) {
    Tell(command);
    Tell("send IotStatusNotify {\"status\": []}");
    return WaitForLog("key 2 (IotStatusNotify) refused by MainController", ++m_orders);
}

int RunningProduct::AgentLines(const std::string& text) {
    return CountOf(m_agent.Output(), text);
}

QJsonObject RunningProduct::Configuration() const {
    QFile file(m_folder.filePath(QStringLiteral("ryx.json")));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

void RunningProduct::WriteConfiguration() {
    if (m_newKeys.isEmpty())
        return;
    QJsonObject keys = Configuration();
    for (auto key = m_newKeys.begin(); key != m_newKeys.end(); ++key)
        keys[key.key()] = key.value();
    QFile file(m_folder.filePath(QStringLiteral("ryx.json")));
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(keys).toJson()) < 0)
        throw std::runtime_error("the configuration cannot be written");
    m_newKeys = {};
}

bool RunningProduct::PlugIn(const std::string& folder) {
    if (HasLauncher())
        return PlugInUnderWine(folder);
    m_drive = "/mnt/" + m_folder.path().section(QLatin1Char('/'), -1).toStdString();
    return QDir().mkpath(QString::fromStdString(m_drive)) &&
           std::system(("mount --bind " + folder + ' ' + m_drive + " 2>/dev/null").c_str()) == 0;
}

// Wine finds files by the link as soon as it is there, and lists drives that somebody has defined.
bool RunningProduct::PlugInUnderWine(const std::string& folder) {
    const std::string prefix = Variable("WINEPREFIX");
    m_drive = prefix + "/dosdevices/e:";
    return !prefix.empty() && QFile::link(QString::fromStdString(folder), QString::fromStdString(m_drive)) &&
           TellOfDrive({"arrive", "E", PathForPrograms(folder)});
}

bool RunningProduct::TellOfDrive(const Words& words) const {
    ChildProcess messenger;
    Start(messenger, Steering::Drive, words);
    WaitUntil([&] { return CountOf(messenger.Output(), "done") > 0 || !messenger.IsRunning(); });
    return CountOf(messenger.Output(), "done") > 0;
}

void RunningProduct::PlugOut() {
    if (m_drive.empty())
        return;
    const QString drive = QString::fromStdString(m_drive);
    if (!HasLauncher() && std::system(("umount " + m_drive + " 2>/dev/null").c_str()) == 0)
        QDir().rmdir(drive);
    else if (HasLauncher() && QFile::remove(drive))
        TellOfDrive({"remove", "E"});
    m_drive.clear();
}

void RunningProduct::StartFrontEnd(const Words& arguments) {
    WriteConfiguration();
    Start(m_frontEnd, Steering::FrontEnd, arguments, "frontend.err");
}

bool RunningProduct::HaveMet() {
    return AgentSays("received 0 ContextRequest") && AgentSays("received 12 OtaVersionInfo");
}

bool RunningProduct::StartBoth() {
    StartFrontEnd();
    return StartAgent() && HaveMet();
}

bool RunningProduct::StartSupervised() {
    return StartAgent({"--launch", PathForPrograms(FileOf(Steering::FrontEnd))}) && HaveMet();
}

std::optional<int> RunningProduct::StartAgain(const Words& arguments) {
    ChildProcess second;
    Start(second, Steering::FrontEnd, arguments, "frontend.err");
    WaitUntil([&] { return !second.IsRunning(); });
    return second.Result();
}

std::string RunningProduct::Log() const {
    std::string log;
    const QDir folder(m_folder.filePath(QStringLiteral("log")));
    for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            log += file.readAll().replace("\r\n", "\n").toStdString();
    }
    return log;
}

int RunningProduct::LogLines(const std::string& text) const {
    return CountOf(Log(), text);
}

bool RunningProduct::WaitForLog(const std::string& text, int times) const {
    return WaitUntil([&] { return LogLines(text) >= times; });
}

std::string RunningProduct::Story() {
    return "The agent service:\n" + m_agent.Output() + "The log:\n" + Log();
}
