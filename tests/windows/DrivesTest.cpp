// The system's volume messages, sent by another process.
#include "platform/application/UsbDetector.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <gtest/gtest.h>

#include <windows.h>

namespace {

void Tell(const char* what, const char* letters) {
    EXPECT_EQ(
        QProcess::execute(QCoreApplication::applicationDirPath() + QStringLiteral("/volume_message.exe"),
                          {QLatin1String(what), QLatin1String(letters)}),
        0);
}

TEST(WindowsDrives, EveryDriveOfAMessageComesAndGoes) {
    const QTemporaryDir folder;
    const std::wstring target = QDir::toNativeSeparators(folder.path()).toStdWString();
    for (const wchar_t* letter : {L"T:", L"U:", L"V:"})
        ASSERT_TRUE(DefineDosDeviceW(0, letter, target.c_str())) << GetLastError();
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
        {"arrive", "TV", "+T+V"}, {"arrive", "T", "-T+T"}, // another stick, faster than a look
        {"remove", "VU", "-V"},   {"arrive", "WU", "+U"},  // there is no W
        {"remove", "TU", "-T-U"},
    };
    for (const auto& [what, letters, expected] : steps) {
        told.clear();
        Tell(what, letters);
        EXPECT_TRUE(QTest::qWaitFor([&] { return told == expected; })) << what << letters << ": " << told;
    }
    EXPECT_FALSE(detector.Drives().contains(QStringLiteral("C:/")));
    for (const wchar_t* letter : {L"T:", L"U:", L"V:"})
        DefineDosDeviceW(DDD_REMOVE_DEFINITION, letter, nullptr);
}

} // namespace
