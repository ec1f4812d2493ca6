#pragma once

#include "ChildProcess.h"
#include "Desktop.h"

#include <QJsonObject>
#include <QTemporaryDir>
#include <list>
#include <optional>
#include <string>
#include <vector>

/// A program that the driver starts: the one that the environment variable names, or this build's.
struct Program {
    const char* variable;
    const char* name;
};

/// All that the environment tells the driver, so that it can drive programs that are built for another
/// system. A further program is a further line here, started with RunningProduct::Start.
namespace Steering {
constexpr char Display[] = "RYX_E2E_DISPLAY";   ///< the display to use, instead of a virtual screen
constexpr char Launcher[] = "RYX_E2E_LAUNCHER"; ///< words that start every program, such as Wine's
constexpr Program FrontEnd{"RYX_E2E_FRONTEND", "velmora-ryx"};
constexpr Program Agent{"RYX_E2E_AGENT", "ryx-agent"};
constexpr Program ForeignWindow{"RYX_E2E_FOREIGN", "foreign_window"}; // needed where there is a launcher
constexpr Program Attack{"RYX_E2E_ATTACK", "ryx-attack"};
constexpr Program Drive{"RYX_E2E_DRIVE", "volume_message"}; // needed under Wine
constexpr Program Contract{"RYX_E2E_CONTRACT", "platform_tests"};
constexpr Program Popups{"RYX_E2E_POPUPS", "ryx-popups"};
constexpr Program SessionManager{"RYX_E2E_SESSION_MANAGER", "ryx-session-manager"};
} // namespace Steering

/// The product's two programs, in a temporary folder with a configuration, a log and a pipe of their own,
/// on one desktop. What a person sees of them is told by page objects such as MainPage and LockScreen.
/// Everything ends with this object. Programs with a launcher get to see the file system as drive Z.
class RunningProduct {
public:
    using Words = ChildProcess::Words;

    explicit RunningProduct(Desktop& desktop);
    ~RunningProduct();

    /// Sets a value of the configuration, in which the device is enrolled at first; counts from the next
    /// start. Everything else in the file stays, also what the agent service has written there.
    void Configure(const char* key, const QJsonValue& value) { m_newKeys[QLatin1String(key)] = value; }
    /// A value as it stands in the file.
    QJsonValue Configured(const char* key) const { return Configuration()[QLatin1String(key)]; }
    /// Takes the enrolment out of the configuration.
    void ConfigureUnenrolled();
    /// The desktop's scale, such as 1.5; counts from the next start of the front end.
    void SetScale(double scale) { m_scale = scale; }
    double Scale() const { return m_scale; }

    /// Changes a variable of the programs' environment, as "NAME=value"; counts from the next start.
    void SetVariable(const std::string& word) { m_variables.push_back(word); }

    /// Starts the agent service, behind the words of `before` if there are any, and waits until it listens.
    bool StartAgent(const Words& arguments = {}, const Words& before = {});
    /// Types a command at the agent service's console.
    void Tell(const std::string& command) { m_agent.Write(command + '\n'); }
    /// The same, and waits until the front end has done what came of it.
    bool Order(const std::string& command);
    /// Waits for a line of the agent service that contains `text`, behind the one that the last call found.
    bool AgentSays(const std::string& text);
    /// How many lines of the agent service contain `text`.
    int AgentLines(const std::string& text);

    /// Starts the front end and returns at once.
    void StartFrontEnd(const Words& arguments = {});
    /// Starts the front end and the agent service, and waits until they have met.
    bool StartBoth();
    /// The same with a front end that the agent service starts, and starts again whenever it ends.
    bool StartSupervised();
    /// Starts the front end a second time and waits for that to end; its exit code, if it ended.
    std::optional<int> StartAgain(const Words& arguments = {});

    /// Starts any program on the product's desktop, in its environment; its errors go to `errorFile` in the
    /// product's folder, or nowhere.
    void Start(ChildProcess& process, const Program& program, const Words& arguments,
               const std::string& errorFile = {}, const Words& before = {}) const;
    /// Lets a foreign program do something to the window with this title, as tools/e2e/Attack.cpp and
    /// tools/windows/Attack.cpp list it, and waits until it is done; what it has printed.
    std::string Attack(const std::string& command, const std::string& title);
    /// How many of their lines contain `text`; ends those that stay.
    int AttackersSay(const std::string& text);
    void EndAttacks() { m_attackers.clear(); }

    /// Puts a USB drive with the contents of `folder` in, or takes it out; false where that cannot be done.
    bool PlugIn(const std::string& folder);
    void PlugOut();
    bool HasLauncher() const { return !m_launcher.empty(); }

    ChildProcess& Agent() { return m_agent; }
    ChildProcess& FrontEnd() { return m_frontEnd; }

    /// How many lines of the front ends' log files contain `text`.
    int LogLines(const std::string& text) const;
    bool WaitForLog(const std::string& text, int times = 1) const;

    /// What a failed test should tell: the agent service's lines and the log.
    std::string Story();

    /// The path as the programs name it, such as on their drive Z.
    std::string PathForPrograms(const std::string& path) const;

    Desktop& Screen() const { return m_desktop; }
    std::string Folder() const { return m_folder.path().toStdString(); }

private:
    Words Environment() const;
    QJsonObject Configuration() const;
    void WriteConfiguration();
    bool HaveMet();
    bool PlugInUnderWine(const std::string& folder);
    bool TellOfDrive(const Words& words) const;
    std::string Log() const;

    Desktop& m_desktop;
    QTemporaryDir m_folder;
    Words m_launcher;
    QJsonObject m_newKeys; // of the configuration, not yet in the file
    std::string m_pipe;
    double m_scale = 1;
    Words m_variables;
    ChildProcess m_agent;
    ChildProcess m_frontEnd;
    int m_orders = 0;
    std::string m_drive;                 // that is plugged in: where it is mounted, or its letter's link
    std::list<ChildProcess> m_attackers; // some of them stay
    std::size_t m_agentRead = 0;         // of the agent service's output, what AgentSays has passed
};
