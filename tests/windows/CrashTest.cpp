// A crash reporter that was there before the product's own, and hangs.
#include "common/CrashRecords.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <windows.h>

TEST(WindowsCrash, DISABLED_WithAReporterThatHangs) { // the process of the test below
    SetUnhandledExceptionFilter([](EXCEPTION_POINTERS*) -> LONG {
        Sleep(INFINITE);
        return EXCEPTION_EXECUTE_HANDLER;
    });
    CrashRecords::Start(qEnvironmentVariable("RYX_CRASH_FOLDER"));
    RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr);
}

TEST(WindowsCrash, EndsTheProcessAlsoWhenAReporterHangs) {
    const QTemporaryDir folder;
    qputenv("RYX_CRASH_FOLDER", folder.path().toLocal8Bit());
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--gtest_also_run_disabled_tests"),
                   QStringLiteral("--gtest_catch_exceptions=0"),
                   QStringLiteral("--gtest_filter=WindowsCrash.DISABLED_WithAReporterThatHangs")});
    EXPECT_TRUE(process.waitForFinished(20000));
    EXPECT_EQ(QDir(folder.path()).entryList({QStringLiteral("*-Crash.*")}, QDir::Files).size(), 1);
}
