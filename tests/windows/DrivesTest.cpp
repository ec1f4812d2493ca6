// The system's volume messages, sent by another process.
#include "platform/application/UsbDetector.h"

#include <QCoreApplication>
#include <QProcess>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

/// The messenger waits for this process's answer, too.
void Tell(const char* what, const char* letters) {
    QProcess messenger;
    messenger.start(QCoreApplication::applicationDirPath() + QStringLiteral("/volume_message.exe"),
                    {QLatin1String(what), QLatin1String(letters)});
    EXPECT_TRUE(QTest::qWaitFor([&] { return messenger.state() == QProcess::NotRunning; }));
    EXPECT_EQ(messenger.exitCode(), 0);
}

// C and Z are there in every run, and plugged in as far as the messages say so; W is not there.
TEST(WindowsDrives, EveryDriveOfAMessageComesAndGoes) {
    UsbDetector detector;
    std::string told;
    QObject::connect(&detector, &UsbDetector::UsbArrived,
                     [&](const QString& drive) { told += '+' + drive.left(1).toStdString(); });
    QObject::connect(&detector, &UsbDetector::UsbRemoved,
                     [&](const QString& drive) { told += '-' + drive.left(1).toStdString(); });
    const struct {
        const char* what;
        const char* letters;
        std::string told;
    } steps[] = {
        {"arrive", "CZ", "+C+Z"}, {"arrive", "C", "-C+C"}, // another one, faster than a look
        {"remove", "ZW", "-Z"},   {"arrive", "WZ", "+Z"},  {"remove", "CZ", "-C-Z"},
    };
    for (const auto& [what, letters, expected] : steps) {
        told.clear();
        Tell(what, letters);
        EXPECT_TRUE(QTest::qWaitFor([&] { return told == expected; })) << what << letters << ": " << told;
    }
}

} // namespace
