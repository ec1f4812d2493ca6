// What every operating system's back end must do alike.
#include "platform/application/UsbDetector.h"
#include "platform/system/SystemInput.h"
#include "platform/system/SystemPipe.h"
#include "platform/system/SystemSession.h"
#include "platform/system/SystemWindows.h"

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSharedMemory>
#include <QWidget>
#include <QtTest>
#include <gtest/gtest.h>
#include <memory>

TEST(SystemContract, PipeServerIsThisAccount) {
    const SystemPipe& system = SystemPipe::Native();
    QLocalServer server;
    ASSERT_TRUE(server.listen(system.LocalName(QStringLiteral("\\\\.\\pipe\\ryx-contract"))));
    QLocalSocket client;
    client.connectToServer(system.LocalName(QStringLiteral("\\\\.\\pipe\\ryx-contract")));
    ASSERT_TRUE(client.waitForConnected());

    EXPECT_FALSE(system.CurrentAccount().isEmpty());
    EXPECT_EQ(system.Server(client.socketDescriptor()).account, system.CurrentAccount());
    EXPECT_TRUE(system.Server(-1).account.isEmpty());
    EXPECT_FALSE(system.Server(-1).isSystem);
}

TEST(SystemContract, SharedMemoryKeyIsUsableAndOrphansGo) {
    const SystemSession& system = SystemSession::Native();
    std::unique_ptr<QSharedMemory> first;
    QString key;
    // Where a key is made of a file's number, a segment of another process may have it already: an ended
    // one's is released at the second attempt, when the file is there, and a running one's needs another
    // file. An object whose creation has failed takes no other key.
    for (int attempt = 0; attempt < 10 && !(first && first->isAttached()); ++attempt) {
        key = system.SharedMemoryKey(QStringLiteral("ryx-contract-%1").arg(attempt / 2));
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
    EXPECT_TRUE(QDir::isAbsolutePath(system.LogFolder()));
    EXPECT_NE(system.ConfigurationFolder(), system.LogFolder());
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
