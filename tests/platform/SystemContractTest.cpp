// What every operating system's back end must do alike.
#include "platform/application/UsbDetector.h"
#include "platform/system/SystemDesktop.h"
#include "platform/system/SystemInput.h"
#include "platform/system/SystemPipe.h"
#include "platform/system/SystemProcesses.h"
#include "platform/system/SystemPrograms.h"
#include "platform/system/SystemService.h"
#include "platform/system/SystemSession.h"
#include "platform/system/SystemWindows.h"

#include <QDir>
#include <QLocalSocket>
#include <QProcess>
#include <QSharedMemory>
#include <QWidget>
#include <QtTest>
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

TEST(SystemContract, APipeTellsWhoServesItBeforeAByteGoesEitherWay) {
    const SystemPipe& system = SystemPipe::Native();
    const QString name = QStringLiteral("\\\\.\\pipe\\ryx-contract");
    EXPECT_EQ(system.Open(name, [](const PipePeer&) { return true; }), -1) << "nobody serves it";
    std::vector<std::unique_ptr<QLocalSocket>> clients;
    QString problem;
    const auto listener = SystemService::Native().Listen(
        name,
        [&](qintptr client) {
            clients.push_back(std::make_unique<QLocalSocket>());
            clients.back()->setSocketDescriptor(client);
        },
        problem);
    ASSERT_TRUE(listener) << problem.toStdString();

    EXPECT_EQ(system.Open(name, [](const PipePeer&) { return false; }), -1);
    PipePeer server;
    QLocalSocket client;
    ASSERT_TRUE(QTest::qWaitFor([&] { // the server makes room for the next one
        const qintptr pipe = system.Open(name, [&](const PipePeer& peer) {
            server = peer;
            return true;
        });
        return pipe != -1 && client.setSocketDescriptor(pipe);
    }));
    EXPECT_EQ(server.process, QCoreApplication::applicationPid());
    EXPECT_TRUE(system.OwnAccounts().contains(server.owner)) << server.owner.toStdString();
    EXPECT_EQ(server.accounts, system.OwnAccounts());
    client.write("question");
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return clients.size() == 2 && clients.back()->bytesAvailable() == 8; }));
    clients.back()->write("answer");
    EXPECT_TRUE(QTest::qWaitFor([&] { return client.bytesAvailable() == 6; }));

    EXPECT_EQ(system.AccountId(system.CurrentAccount()), system.OwnAccounts().value(0));
    EXPECT_EQ(system.AccountId(server.owner), server.owner);
    EXPECT_EQ(system.AccountId(QStringLiteral("no-such-account")), QString());
}

TEST(SystemContract, OwnNameKeysSharedMemoryAndOrphansGo) {
    const SystemSession& system = SystemSession::Native();
    std::unique_ptr<QSharedMemory> first;
    QString key;
    // Where a key is made of a file's number, a segment of another process may have it already: an ended
    // one's is released at the second attempt, when the file is there, and a running one's needs another
    // file. An object whose creation has failed takes no other key.
    for (int attempt = 0; attempt < 10 && !(first && first->isAttached()); ++attempt) {
        key = system.OwnName(QStringLiteral("ryx-contract-%1").arg(attempt / 2));
        system.ReleaseOrphanedSharedMemory(key);
        first = std::make_unique<QSharedMemory>();
        first->setNativeKey(key);
        first->create(4);
    }
    ASSERT_TRUE(first->isAttached()) << first->errorString().toStdString();
    system.ReleaseOrphanedSharedMemory(key);
    QSharedMemory second;
    second.setNativeKey(key);
    EXPECT_TRUE(second.attach()) << "a segment in use must stay";
    second.detach();
    first->detach();
    EXPECT_FALSE(second.attach());
}

TEST(SystemContract, FoldersAreAbsoluteAndAnsiKeepsPlainText) {
    const SystemSession& system = SystemSession::Native();
    EXPECT_TRUE(QDir::isAbsolutePath(system.ConfigurationFolder()));
    EXPECT_EQ(system.ToAnsi(L"C:/logs/ryx 1"), "C:/logs/ryx 1");
    EXPECT_EQ(system.ToAnsi(std::wstring()), "");
}

TEST(SystemContract, HResultErrorTellsCodeAndHasWords) {
    const HResultError known("CoInitializeEx", static_cast<std::int32_t>(0x80070005)); // access denied
    EXPECT_EQ(known.Result(), static_cast<std::int32_t>(0x80070005));
    EXPECT_EQ(std::string(known.what()).rfind("CoInitializeEx failed with 0x80070005: ", 0), 0u)
        << known.what();
    const HResultError unknown("X", static_cast<std::int32_t>(0xA5A5A5A5));
    EXPECT_STREQ(unknown.what(), "X failed with 0xA5A5A5A5: unknown error");
}

TEST(SystemContract, AWindowMadeHiddenShowsAndRisesAtItsSize) {
    const SystemWindows& system = SystemWindows::Native();
    QWidget window;
    window.setGeometry(40, 50, 300, 200);
    system.CreateHidden(window);
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(window.internalWinId());
    window.setWindowState(Qt::WindowNoState);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    system.RaiseTopmost(window.winId());
    QCoreApplication::processEvents();
    EXPECT_EQ(window.size(), QSize(300, 200)); // its place is the window manager's to choose
    EXPECT_GE(SystemInput::Native().MillisecondsSinceInput(), -1);
}

TEST(SystemContract, DrivesAreListedByTheirRootsAndWatched) {
    EXPECT_TRUE(SystemDrives::Native().WatchDrives([] {}));
    EXPECT_TRUE(
        UsbDetector::IsOnDrive(QStringLiteral("/media/STICK/a.json"), QStringLiteral("/media/STICK")));
    EXPECT_FALSE(
        UsbDetector::IsOnDrive(QStringLiteral("/media/STICK2/a.json"), QStringLiteral("/media/STICK")));
    for (const QString& drive : UsbDetector().Drives()) {
        EXPECT_TRUE(QDir::isAbsolutePath(drive)) << drive.toStdString();
        EXPECT_FALSE(QDir::home().path().startsWith(drive)) << drive.toStdString() << " is the system's";
        EXPECT_TRUE(UsbDetector::IsOnDrive(QDir(drive).filePath(QStringLiteral("a.json")), drive));
        EXPECT_FALSE(UsbDetector::IsOnDrive(drive.chopped(1) + QStringLiteral("2/a.json"), drive));
    }
}

TEST(SystemContract, WindowsOfOtherProgramsAreToldOfDescribedAndAskedToClose) {
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        GTEST_SKIP() << "there is no desktop";
    const SystemDesktop& desktop = SystemDesktop::Native();
    const SystemProcesses& processes = SystemProcesses::Native();
    QWidget own;
    QProcess program;
    QByteArray output;
    const auto says = [&](const QByteArray& line, int times) {
        return QTest::qWaitFor([&] {
            output += program.readAll();
            return output.count(line) >= times;
        });
    };
    std::vector<WId> shown; // of the program
    auto* const watch = desktop.WatchShown([&](WId window) {
        const auto note = [&, window] {
            EXPECT_NE(window, own.winId());
            if (desktop.ProcessOf(window) == program.processId())
                shown.push_back(window);
        };
        QMetaObject::invokeMethod(&own, note, Qt::QueuedConnection);
    });
    ASSERT_TRUE(watch);
    own.show();
    program.start(QCoreApplication::applicationDirPath() + QStringLiteral("/ryx-popups"), QStringList());
    for (const char* kind : {"closes", "closes", "refuses"}) {
        const std::size_t before = shown.size();
        program.write(QByteArray(kind) + '\n');
        ASSERT_TRUE(QTest::qWaitFor([&] { return shown.size() > before; })) << kind;
    }
    for (const WId window : shown) {
        EXPECT_TRUE(desktop.GetWindowTitle(window).startsWith(QLatin1String("Pop-up that ")));
        EXPECT_FALSE(desktop.GetWindowClassName(window).isEmpty());
        EXPECT_TRUE(desktop.IsVisible(window) && desktop.IsEnabled(window) && !desktop.IsChildWindow(window));
        EXPECT_FALSE(desktop.GetWindowExStyle(window).takesNoActivation);
        const QSize size =
            desktop.GetWindowGeometry(window).value_or(QRect()).size(); // Windows counts the frame
        EXPECT_TRUE(size.width() >= 320 && size.width() < 400 && size.height() >= 160) << size.width();
    }
    const QString image = processes.GetProcessFilePath(desktop.ProcessOf(shown[0]));
    EXPECT_EQ(QFileInfo(image).completeBaseName(), QLatin1String("ryx-popups"));
    EXPECT_EQ(processes.GetProcessFilePath(0xfffffff0), QString());
    EXPECT_EQ(SystemPrograms::Native().GetSubjectName(image), QString());
    const std::vector<WId> all = desktop.TopLevelWindows().value();
    const auto last = std::find(all.begin(), all.end(), shown[2]);
    EXPECT_NE(std::find(last, all.end(), shown[0]), all.end()) << "below the last one";

    desktop.Close(shown[0]);
    desktop.RequestClose(shown[1]);
    desktop.Close(shown[2]);
    EXPECT_TRUE(says("asked", 3) && says("closed", 2));
    EXPECT_FALSE(desktop.IsVisible(shown[0]));
    EXPECT_FALSE(desktop.GetWindowGeometry(shown[1]));
    EXPECT_TRUE(desktop.IsVisible(shown[2])) << "it has refused";
    desktop.EndWatch(watch);
    program.write("closes\n");
    EXPECT_TRUE(says("shown", 4));
    EXPECT_EQ(shown.size(), 3u) << "each once, and none when nobody watches";
    program.write("quit\n");
    program.waitForFinished();
}
