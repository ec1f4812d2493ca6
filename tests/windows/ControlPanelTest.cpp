// The Control Panel's watcher on real windows of other processes, and the query that finds its process.
#include "controllers/ControlPanelThread.h"
#include "support/LogCapture.h"

#include <QDir>
#include <QProcess>
#include <QtTest>
#include <gtest/gtest.h>
#include <thread>

#include <windows.h>

#include <objbase.h>

namespace {

/// A process with one folder window, which follows commands.
struct Folder : QProcess {
    explicit Folder(const QString& title) {
        start(QCoreApplication::applicationDirPath() + QStringLiteral("/foreign_window.exe"),
              {title, QStringLiteral("50"), QStringLiteral("60"), QStringLiteral("300"),
               QStringLiteral("200"), QStringLiteral("CabinetWClass")});
        EXPECT_TRUE(waitForStarted());
        Tell("activate"); // it answers when its window is there
    }
    ~Folder() override {
        kill();
        waitForFinished();
    }
    void Tell(const QByteArray& command) {
        write(command + '\n');
        EXPECT_TRUE(QTest::qWaitFor([&] { return readAll().contains(command); })) << command.toStdString();
    }
    bool IsRunning() const { return state() == Running; }
};

/// The machine's processes, with another one in the Control Panel's place.
struct ProcessesWithControlPanel : SystemProcesses {
    ProcessIdentity Find(const QString&, const QString&) const override { return Identify(id); }
    ProcessIdentity Identify(quint32 number) const override { return Native().Identify(number); }
    Terminated Terminate(const ProcessIdentity& process) const override {
        ++terminations;
        return Native().Terminate(process);
    }
    std::atomic<quint32> id{0};
    mutable std::atomic<int> terminations{0};
};

struct ControlPanelTest : testing::TestWithParam<std::tuple<const char*, bool>> {
    LogCapture log;
    ProcessesWithControlPanel processes;
    ControlPanelThread watcher{SystemDesktop::Native(), processes};
};

TEST_P(ControlPanelTest, EndsWithItsWindowAndNoOtherProcessDoes) {
    const auto [goes, withOther] = GetParam();
    std::unique_ptr<Folder> other = withOther ? std::make_unique<Folder>(QStringLiteral("Other")) : nullptr;
    Folder panel(QStringLiteral("Panel"));
    processes.id = static_cast<quint32>(panel.processId());
    watcher.Rearm();
    watcher.LookUp();
    ASSERT_TRUE(QTest::qWaitFor([&] { return log.Count("sees the window of pid") == 1; }));
    ASSERT_TRUE(panel.IsRunning());

    panel.write(QByteArray(goes) + '\n'); // it may end before it can answer
    EXPECT_TRUE(QTest::qWaitFor([&] { return !panel.IsRunning(); }));
    EXPECT_EQ(panel.exitCode(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return log.Count("DestroyThread pid") == 1; }));
    EXPECT_EQ(processes.terminations, 1);
    EXPECT_TRUE(!other || other->IsRunning());
}

INSTANTIATE_TEST_SUITE_P(Window, ControlPanelTest,
                         testing::Combine(testing::Values("close", "hide"), testing::Bool()));

// Wine tells a process's command line to that process alone, so the program looks for itself.
TEST(WindowsProcesses, FindsAProcessByItsWholeCommandLineWhateverComIsDoing) {
    const QString name = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    const QString commandLine = QString::fromWCharArray(GetCommandLineW());
    const SystemProcesses& processes = SystemProcesses::Native();
    const ProcessIdentity own = processes.Identify(GetCurrentProcessId());
    EXPECT_NE(own.started, 0u);
    std::thread([&] {
        ASSERT_EQ(CoInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK);
        EXPECT_EQ(processes.Find(name, commandLine.toUpper()), own);
        EXPECT_EQ(processes.Find(name, commandLine + QLatin1Char('x')), ProcessIdentity());
        EXPECT_EQ(processes.Find(QStringLiteral("no such.exe"), commandLine), ProcessIdentity());
        APTTYPE type{};
        APTTYPEQUALIFIER qualifier{};
        EXPECT_EQ(CoGetApartmentType(&type, &qualifier), S_OK);
        EXPECT_EQ(type, APTTYPE_MTA);
        CoUninitialize();
    }).join();
    EXPECT_EQ(processes.Find(name, commandLine), own);
    EXPECT_EQ(processes.Terminate({own.id, own.started + 1}).ending, SystemProcesses::Ending::NoLongerThere);
    EXPECT_EQ(processes.Identify(0xfffffff0), ProcessIdentity());
}

} // namespace
