// Crashes of a process of its own, from the fault to the start after it.
#include "common/CrashRecords.h"
#include "support/LogCapture.h"

#include <QCoreApplication>
#include <QDir>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <stdexcept>
#include <thread>

namespace {

volatile int* volatile nowhere = nullptr;

/// The fault itself, and not what a sanitizer says before it.
[[gnu::no_sanitize("undefined")]] void WriteNowhere() {
    *nowhere = 1;
}

/// Whether a debugger finds in the minidump the thread that has crashed, with a stack that leads into this
/// program.
bool HasStackOfCrash(const QByteArray& dump) {
    const auto number = [&dump](quint64 at, std::size_t size = 4) {
        quint64 value = 0;
        if (at + size <= static_cast<quint64>(dump.size()))
            std::memcpy(&value, dump.constData() + at, size);
        return value;
    };
    enum Stream { Threads = 3, Modules = 4, Exception = 6 };
    QMap<quint64, quint64> streams;
    for (quint64 i = 0, directory = number(12); i < number(8); ++i)
        streams[number(directory + i * 12)] = number(directory + i * 12 + 8);

    const quint64 program = streams[Modules] + 4; // the first one
    const quint64 begin = number(program, 8);
    for (quint64 i = 0; i < number(streams[Threads]); ++i) {
        const quint64 thread = streams[Threads] + 4 + i * 48;
        const quint64 stack = number(thread + 36);
        if (number(thread) != number(streams[Exception]))
            continue;
        for (quint64 at = 0; at < number(thread + 32); at += 8)
            if (const quint64 word = number(stack + at, 8);
                word > begin && word < begin + number(program + 8))
                return true;
    }
    return false;
}

} // namespace

TEST(CrashRecords, DISABLED_Crash) { // the process of the test below
    [[maybe_unused]] const volatile char typed[] = "typed: 123456";
    const QByteArray kind = qgetenv("RYX_CRASH");
    if (kind == "signal") // whose handler was there before, and hangs
        std::signal(SIGSEGV, [](int) {
            for (;;)
                std::this_thread::yield();
        });
    CrashRecords::Start(qEnvironmentVariable("RYX_CRASH_FOLDER"));
    if (kind == "address" || kind == "signal")
        WriteNowhere();
    if (kind == "abort")
        std::abort();
    if (kind == "thread")
        std::thread([] { throw std::runtime_error("nobody catches it"); }).join();
}

TEST(CrashRecords, EachCrashEndsTheProcessAndLeavesARecordThatTheNextStartTellsOf) {
    const QTemporaryDir place;
    const QDir folder(place.path());
    for (int age = 1; age < 4; ++age) {
        QFile old(folder.filePath(QStringLiteral("7-Crash.%1.txt").arg(age)));
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.setFileTime(QDateTime::currentDateTime().addDays(-age), QFile::FileModificationTime);
    }
    const auto records = [&] { return folder.entryList({QStringLiteral("*-Crash.*")}, QDir::Files); };
    const QString isNew = QStringLiteral("*.new");

    std::vector<const char*> kinds{"address", "abort", "thread"};
    if (QDir::separator() == QLatin1Char('/')) // Windows' C library calls such a handler before all others
        kinds.push_back("signal");
    for (const char* kind : kinds) {
        SCOPED_TRACE(kind);
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("RYX_CRASH"), QString::fromLatin1(kind));
        environment.insert(QStringLiteral("RYX_CRASH_FOLDER"), place.path());
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--gtest_also_run_disabled_tests"),
                       QStringLiteral("--gtest_filter=CrashRecords.DISABLED_Crash")});
        ASSERT_TRUE(process.waitForStarted());
        const QString number = QString::number(process.processId());
        ASSERT_TRUE(process.waitForFinished(10000)) << "it must be gone";
        // A sanitizer has its say, too, and ends the process in its own way.
        EXPECT_TRUE(process.exitStatus() == QProcess::CrashExit || process.exitCode() != 0);

        const QStringList left = folder.entryList({isNew}, QDir::Files);
        ASSERT_EQ(left.size(), 1) << process.readAllStandardError().toStdString();
        EXPECT_TRUE(left.first().contains(QLatin1Char('.') + number + QLatin1Char('.')));
        QFile record(folder.filePath(left.first()));
        ASSERT_TRUE(record.open(QIODevice::ReadOnly));
        const QByteArray content = record.readAll();
        EXPECT_TRUE(content.startsWith("MDMP") ? HasStackOfCrash(content)
                                               : content.contains("controllers_tests(+"))
            << content.data();
        EXPECT_FALSE(content.contains("123456")) << "where it was, and not what it knew";
    }

    const LogCapture log;
    CrashRecords::Start(place.path());
    EXPECT_EQ(log.Count("an earlier run has crashed: "), 1);
    EXPECT_EQ(folder.entryList({isNew}, QDir::Files), QStringList());
    EXPECT_EQ(records().size(), 5) << records().join(QLatin1Char(' ')).toStdString();
    EXPECT_TRUE(records().contains(QStringLiteral("7-Crash.1.txt")));
    EXPECT_EQ(CrashRecords::Newest(place.path()).date(), QDate::currentDate());
}
