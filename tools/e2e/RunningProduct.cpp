#include "RunningProduct.h"

#include "platform/context/ProductConstants.h"
#include "platform/system/SystemPipe.h"
#include "platform/system/SystemSession.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

const QColor RunningProduct::Connected("#1A7F37");
const QColor RunningProduct::Connecting("#9A6700");
const QColor RunningProduct::Disconnected("#CF222E");
const QColor RunningProduct::NotEnrolled("#57606A");

namespace {

// The lock's look, which is the same in every theme.
const QColor LockBackground("#1B2A3A");
const QColor LockAccent("#7CA8FF");
const QColor LockSurface("#26394D");

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::vector<std::string> Words(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> words;
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

/// Pixels of exactly this colour: how many, and what they span.
struct Area {
    int pixels = 0;
    QRect bounds;
};

Area FindColor(const QImage& image, const QColor& color, const QRect& where) {
    Area area;
    int left = image.width(), top = image.height(), right = -1, bottom = -1;
    const QRect part = where & image.rect();
    const QRgb wanted = color.rgb() & RGB_MASK;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = part.left(); x <= part.right(); ++x) {
            if ((line[x] & RGB_MASK) != wanted)
                continue;
            ++area.pixels;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    }
    if (area.pixels > 0)
        area.bounds = QRect(QPoint(left, top), QPoint(right, bottom));
    return area;
}

} // namespace

RunningProduct::RunningProduct(Desktop& desktop)
    : m_desktop(desktop),
      m_folder(QDir::tempPath() + QStringLiteral("/ryx")),
      m_launcher(Words(Variable("RYX_E2E_LAUNCHER"))) {
    if (!m_folder.isValid())
        throw std::runtime_error("no temporary folder");
    // Another user's agent service must be able to put its socket here.
    const auto everybody = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther |
                           QFile::WriteOther | QFile::ExeOther;
    QFile::setPermissions(m_folder.path(), everybody);

    m_pipe = "\\\\.\\pipe\\" + m_folder.path().section(QLatin1Char('/'), -1).toStdString();
    m_configuration = {{"pipeName", m_pipe},
                       {"agentAccount", SystemPipe::Native().CurrentAccount().toStdString()},
                       {"logFolder", PathForPrograms(Folder() + "/log")},
                       {"deviceName", "Room 4.12"},
                       {"language", "en"}};
}

RunningProduct::~RunningProduct() {
    m_frontEnd.Kill();
    // Its shared memory outlives it on Linux; the folder that names it goes now.
    const SystemSession& system = SystemSession::Native();
    const QFileInfo key(system.SharedMemoryKey(QString::fromLatin1(Product::ShellMarker)));
    system.ReleaseOrphanedSharedMemory(m_folder.filePath(key.fileName()));
}

std::string RunningProduct::PathForPrograms(const std::string& path) const {
    return m_launcher.empty() ? path : "Z:" + path;
}

void RunningProduct::Configure(const std::string& key, const std::string& value) {
    m_configuration[key] = value;
}

void RunningProduct::WriteConfiguration() const {
    QJsonObject configuration;
    for (const auto& [key, value] : m_configuration)
        configuration.insert(QString::fromStdString(key), QString::fromStdString(value));
    QFile file(m_folder.filePath(QStringLiteral("ryx.json")));
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(configuration).toJson()) < 0)
        throw std::runtime_error("the configuration cannot be written");
}

std::vector<std::string> RunningProduct::Command(const char* variable, const char* program,
                                                 const std::vector<std::string>& arguments) const {
    std::vector<std::string> command = m_launcher;
    const std::string chosen = Variable(variable);
    command.push_back(chosen.empty() ? std::string(RYX_BIN_DIR "/") + program : chosen);
    command.insert(command.end(), arguments.begin(), arguments.end());
    return command;
}

std::vector<std::string> RunningProduct::Environment() const {
    // What the desktop of whoever runs this has set must not reach the programs. The time zone makes it
    // noon or a little later, so that a lock until the evening never crosses midnight.
    const std::time_t now = std::time(nullptr);
    const int hoursToNoon = 12 - static_cast<int>(now / 3600 % 24);
    return {"DISPLAY=" + m_desktop.Display(),
            "TMPDIR=" + Folder(),
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
}

bool RunningProduct::StartAgent(const std::vector<std::string>& arguments,
                                const std::vector<std::string>& launcher) {
    std::vector<std::string> all = {"--pipe", m_pipe};
    all.insert(all.end(), arguments.begin(), arguments.end());
    std::vector<std::string> command = Command("RYX_E2E_AGENT", "ryx-agent", all);
    command.insert(command.begin(), launcher.begin(), launcher.end());
    m_agent.Start(command, Environment(), Folder() + "/agent.err");
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

int RunningProduct::AgentLines(const std::string& text) {
    return CountOf(m_agent.Output(), text);
}

void RunningProduct::ShowForeignWindow(const std::string& title, const QRect& place) {
    if (m_launcher.empty()) {
        m_desktop.ShowForeignWindow(title, place, true);
        return;
    }
    m_foreignPrograms[title].Start(Command("RYX_E2E_FOREIGN", "foreign_window",
                                           {title, std::to_string(place.x()), std::to_string(place.y()),
                                            std::to_string(place.width()), std::to_string(place.height())}),
                                   Environment());
}

// Under Wine the program itself must ask: what the window manager lifts on its own account, Wine does not
// always learn, and with it no other program.
void RunningProduct::TellForeignProgram(const std::string& title, const std::string& command) {
    ChildProcess& program = m_foreignPrograms.at(title);
    const int done = CountOf(program.Output(), command);
    program.Write(command + '\n');
    if (!WaitUntil([&] { return CountOf(program.Output(), command) > done; }))
        throw std::runtime_error("the window " + title + " does not follow");
}

void RunningProduct::ActivateForeignWindow(const std::string& title) {
    if (m_launcher.empty())
        m_desktop.Activate(m_desktop.Find(title).value());
    else
        TellForeignProgram(title, "activate");
}

void RunningProduct::RaiseForeignWindow(const std::string& title) {
    if (m_launcher.empty())
        m_desktop.Raise(m_desktop.Find(title).value());
    else
        TellForeignProgram(title, "raise");
}

void RunningProduct::StartFrontEnd(const std::vector<std::string>& arguments) {
    WriteConfiguration();
    m_frontEnd.Start(Command("RYX_E2E_FRONTEND", "velmora-ryx", arguments), Environment(),
                     Folder() + "/frontend.err");
}

bool RunningProduct::StartBoth() {
    StartFrontEnd();
    return StartAgent() && AgentSays("received 0 ContextRequest") &&
           AgentSays("received 12 OtaVersionInfo") && WaitForStatus(Connected);
}

std::optional<int> RunningProduct::StartAgain(const std::vector<std::string>& arguments) {
    ChildProcess second;
    second.Start(Command("RYX_E2E_FRONTEND", "velmora-ryx", arguments), Environment(),
                 Folder() + "/frontend.err");
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

bool RunningProduct::ShowsStatus(const QColor& color) const {
    constexpr int headerHeight = 100;
    constexpr int dotPixels = 100;
    const auto window = m_desktop.Find(MainTitle);
    if (!window)
        return false;
    QRect header = window->place;
    header.setHeight(headerHeight);
    return FindColor(m_desktop.Screenshot(), color, header).pixels >= dotPixels;
}

bool RunningProduct::WaitForStatus(const QColor& color) const {
    return WaitUntil([&] { return ShowsStatus(color); });
}

/// The screen, if it shows nothing but the lock; otherwise a null picture.
QImage RunningProduct::LockPicture() const {
    const QRect screen(QPoint(0, 0), m_desktop.Size());
    const auto lock = m_desktop.Find(LockTitle);
    if (!lock || !lock->place.contains(screen) || m_desktop.TopmostTitle() != LockTitle)
        return {};
    // No further beyond it than rounding needs; scaled, the contents may need more than a small screen has.
    if (m_scale <= 1 && !screen.adjusted(0, 0, 2, 2).contains(lock->place))
        return {};
    QImage picture = m_desktop.Screenshot();
    const QRgb background = LockBackground.rgb();
    for (const QPoint& corner :
         {screen.topLeft(), screen.topRight(), screen.bottomLeft(), screen.bottomRight()})
        if (picture.pixel(corner) != background)
            return {};
    return picture;
}

bool RunningProduct::ShowsLockMessage() const {
    const QImage picture = LockPicture();
    return FindColor(picture, LockAccent, picture.rect()).pixels > 3000 &&
           FindColor(picture, LockSurface, picture.rect()).pixels < 100;
}

bool RunningProduct::ShowsPasswordBoxes() const {
    const QImage picture = LockPicture();
    return FindColor(picture, LockSurface, picture.rect()).pixels > 20000;
}

bool RunningProduct::WaitForLock() const {
    return WaitUntil([&] { return ShowsLockMessage(); });
}

bool RunningProduct::OpenPasswordBoxes() {
    if (!WaitForLock())
        return false;
    m_desktop.Click(
        FindColor(LockPicture(), LockAccent, QRect(QPoint(0, 0), m_desktop.Size())).bounds.center());
    return WaitUntil([&] { return FocusedBox().has_value(); });
}

std::optional<int> RunningProduct::FocusedBox() const {
    if (!ShowsPasswordBoxes())
        return std::nullopt;
    const QImage picture = LockPicture();
    const Area border = FindColor(picture, LockAccent, picture.rect());
    if (border.pixels < 100)
        return std::nullopt;
    return border.bounds.left();
}

std::string RunningProduct::Story() {
    return "The agent service:\n" + m_agent.Output() + "The log:\n" + Log();
}
