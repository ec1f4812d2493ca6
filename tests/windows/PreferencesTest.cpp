// Clock and wallpaper on Windows: what other processes see of them.
#include "platform/system/SystemPreferences.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

/// A value of the user's region, as another process reads it.
QString Region(const char* name) {
    QProcess reader;
    reader.start(QStringLiteral("reg"),
                 {QStringLiteral("query"), QStringLiteral("HKCU\\Control Panel\\International"),
                  QStringLiteral("/v"), QLatin1String(name)});
    EXPECT_TRUE(QTest::qWaitFor([&] { return reader.state() == QProcess::NotRunning; }, 20000));
    return QString::fromLocal8Bit(reader.readAll()).section(QStringLiteral("REG_SZ"), 1).trimmed();
}

TEST(WindowsPreferences, BothTimeFormatsAreSetAndOtherProcessesAreTold) {
    QProcess listener;
    listener.start(QCoreApplication::applicationDirPath() + QStringLiteral("/setting_listener.exe"),
                   QStringList());
    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.readAll().contains("ready"); }, 20000));
    const struct {
        HourFormat format;
        const char* longFormat;
        const char* shortFormat;
    } steps[] = {{HourFormat::Hours12, "tt hh:mm:ss", "tt hh:mm"},
                 {HourFormat::Hours24, "HH:mm:ss", "HH:mm"}};
    for (const auto& step : steps) {
        EXPECT_TRUE(QTest::qWaitFor([&] { // a busy program does not hear of it within its 5 ms
            SystemPreferences::Native().SetHourFormat(step.format);
            return listener.readAll().contains("setting changed");
        }));
        EXPECT_EQ(Region("sTimeFormat"), QLatin1String(step.longFormat));
        EXPECT_EQ(Region("sShortTime"), QLatin1String(step.shortFormat));
    }
    listener.kill();
    listener.waitForFinished();
}

TEST(WindowsPreferences, AWallpaperThatCannotBeSetIsTold) {
    std::string told;
    SystemPreferences::Native().SetWallpaper(QStringLiteral("C:/a.png"), WallpaperPlacement::Fit,
                                             [&](const std::string& what) { told += what + '\n'; });
    // Wine has no object for it; on Windows it is there, and the file is not.
    EXPECT_TRUE(told == "SetWallpaper CoCreateInstance failed\n" || told == "SetWallpaper failed\n") << told;
}

} // namespace
