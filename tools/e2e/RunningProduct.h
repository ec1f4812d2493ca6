#pragma once

#include "ChildProcess.h"
#include "Desktop.h"

#include <QColor>
#include <QTemporaryDir>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// The product's two programs, in a temporary folder with a configuration, a log and a pipe of their own,
/// on one desktop; and what a person sees of them there. Everything ends with this object.
///
/// The programs are those that the environment names in RYX_E2E_FRONTEND and RYX_E2E_AGENT, or those of
/// this build; RYX_E2E_LAUNCHER holds the words of a command that starts them, such as Wine's. Programs
/// that are started so get to see the file system as drive Z.
class RunningProduct {
public:
    static constexpr char MainTitle[] = "Velmora RYX";
    static constexpr char LockTitle[] = "Screen lock";

    static const QColor Connected, Connecting, Disconnected, NotEnrolled;

    explicit RunningProduct(Desktop& desktop);
    ~RunningProduct();

    /// Adds a text to the configuration; counts from the next start of the front end.
    void Configure(const std::string& key, const std::string& value);
    /// The desktop's scale, such as 1.5; counts from the next start of the front end.
    void Scale(double scale) { m_scale = scale; }

    /// Starts the agent service, behind the words of `launcher` if there are any, and waits until it listens.
    bool StartAgent(const std::vector<std::string>& arguments = {},
                    const std::vector<std::string>& launcher = {});
    /// Types a command at the agent service's console.
    void Tell(const std::string& command) { m_agent.Write(command + '\n'); }
    /// Waits for a line of the agent service that contains `text`, behind the one that the last call found.
    bool AgentSays(const std::string& text);
    /// How many lines of the agent service contain `text`.
    int AgentLines(const std::string& text);

    /// Starts the front end and returns at once.
    void StartFrontEnd(const std::vector<std::string>& arguments = {});
    /// Starts the front end and the agent service, and waits for the window and the link.
    bool StartBoth();
    /// Starts the front end a second time and waits for that to end; its exit code, if it ended.
    std::optional<int> StartAgain(const std::vector<std::string>& arguments = {});

    /// Shows another program's topmost window, which does not close. Where the programs need a launcher, so
    /// does that one: RYX_E2E_FOREIGN names it.
    void ShowForeignWindow(const std::string& title, const QRect& place);
    /// That window takes the focus.
    void ActivateForeignWindow(const std::string& title);
    /// That window comes above all others, and leaves the focus where it is.
    void RaiseForeignWindow(const std::string& title);

    ChildProcess& Agent() { return m_agent; }
    ChildProcess& FrontEnd() { return m_frontEnd; }

    /// Everything in the front ends' log files.
    std::string Log() const;
    int LogLines(const std::string& text) const;
    bool WaitForLog(const std::string& text, int times = 1) const;

    /// The header of the main window shows this status.
    bool ShowsStatus(const QColor& color) const;
    bool WaitForStatus(const QColor& color) const;

    /// The lock covers the whole screen, above everything else, and shows its message.
    bool ShowsLockMessage() const;
    /// The lock shows the six boxes.
    bool ShowsPasswordBoxes() const;
    bool WaitForLock() const;
    bool WaitForNoLock() const { return m_desktop.WaitForNoWindow(LockTitle); }
    /// Presses the button of the lock's message and waits for the boxes.
    bool OpenPasswordBoxes();
    /// Left edge of the box that has the focus; nothing while none has.
    std::optional<int> FocusedBox() const;

    /// What a failed test should tell: the agent service's lines and the log.
    std::string Story();

    Desktop& Screen() { return m_desktop; }
    std::string Folder() const { return m_folder.path().toStdString(); }
    /// A pipe of this product's own, in the product's form.
    const std::string& PipeName() const { return m_pipe; }

private:
    std::vector<std::string> Command(const char* variable, const char* program,
                                     const std::vector<std::string>& arguments) const;
    std::vector<std::string> Environment() const;
    void TellForeignProgram(const std::string& title, const std::string& command);
    std::string PathForPrograms(const std::string& path) const;
    void WriteConfiguration() const;
    QImage LockPicture() const;

    Desktop& m_desktop;
    QTemporaryDir m_folder;
    std::vector<std::string> m_launcher;
    std::map<std::string, std::string> m_configuration;
    std::string m_pipe;
    double m_scale = 1;
    ChildProcess m_agent;
    ChildProcess m_frontEnd;
    std::map<std::string, ChildProcess> m_foreignPrograms; // by their windows' titles
    std::size_t m_agentRead = 0; // of the agent service's output, what AgentSays has passed
};
