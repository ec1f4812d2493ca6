// The kernel's table of mounts, as text and as it changes.
#include "platform/system/unix/UnixDrives.h"
#include "platform/application/UsbDetector.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QtTest>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>

namespace {

TEST(UnixDrives, AreWhatIsMountedWhereThingsArePluggedIn) {
    QTemporaryFile table;
    ASSERT_TRUE(table.open());
    table.write("22 27 0:21 / /proc rw,relatime - proc proc rw\n"
                "30 27 8:17 / /media/ann/MY\\040STICK rw shared:5 master:2 - vfat /dev/sdb1 rw\n"
                "31 27 8:33 / /run/media/ann/\\303\\234 rw - exfat /dev/sdc1 rw\n"
                "32 27 0:50 / /mnt/server rw - nfs4 server:/ rw\n"
                "33 27 8:49 / /mnt/stick rw - vfat /dev/sdd1 rw\n"
                "34 33 8:50 / /mnt/stick rw - vfat /dev/sde1 rw\n"
                "35 27 8:50 / /mediathek rw - vfat /dev/sde1 rw\n"
                "36 27 8:50 / /mnt/torn\n\nnonsense\n");
    table.flush();
    const QVector<SystemDrive> expected{{QStringLiteral("/media/ann/MY STICK"), 30},
                                        {QStringLiteral("/run/media/ann/Ü"), 31},
                                        {QStringLiteral("/mnt/stick"), 34}};
    EXPECT_EQ(UnixDrives(table.fileName()).Drives(), expected);
    const UnixDrives none(QStringLiteral("/nowhere"));
    EXPECT_TRUE(none.Drives().isEmpty());
    EXPECT_FALSE(none.WatchDrives([] {}));
}

TEST(UnixDrives, AMountIsToldOfOnce) {
    // In a namespace of this process alone, which goes with it.
    if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("none", "/mnt", "tmpfs", 0, nullptr) != 0)
        GTEST_SKIP() << "this user may not mount";
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("/mnt/STICK")) && QDir().mkdir(QStringLiteral("/mnt/OTHER")));
    int looks = 0;
    const auto counting = SystemDrives::Native().WatchDrives([&] { ++looks; });
    UsbDetector detector;
    std::string told;
    QObject::connect(&detector, &UsbDetector::UsbArrived,
                     [&](const QString& drive) { told += '+' + drive.toStdString(); });
    QObject::connect(&detector, &UsbDetector::UsbRemoved,
                     [&](const QString& drive) { told += '-' + drive.toStdString(); });

    ASSERT_EQ(mount("none", "/mnt/STICK", "tmpfs", 0, nullptr), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return told == "+/mnt/STICK"; }));
    const int before = looks;
    for (int round = 0; round < 200; ++round)
        QCoreApplication::processEvents();
    EXPECT_EQ(looks, before) << "the table can always be read, which is no news";

    // Away and back between two looks, with something else come in between.
    told.clear();
    ASSERT_EQ(umount("/mnt/STICK"), 0);
    ASSERT_EQ(mount("none", "/mnt/OTHER", "tmpfs", 0, nullptr), 0);
    ASSERT_EQ(mount("none", "/mnt/STICK", "tmpfs", 0, nullptr), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return told == "-/mnt/STICK+/mnt/OTHER+/mnt/STICK"; })) << told;
}

} // namespace
