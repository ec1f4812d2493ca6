// Who may change a file, as owner, mode and kind of it tell.
#include "platform/system/FileRights.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

TEST(UnixRights, TellWhoElseMayChangeAFile) {
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("file")).toStdString();
    EXPECT_EQ(::symlink("/", path.c_str()), 0);
    EXPECT_EQ(FileRights::Of(path).WhyNotTrusted(), "is a link");
    EXPECT_EQ(::unlink(path.c_str()), 0);
    EXPECT_EQ(FileRights::Of(path).WhyNotTrusted(), "cannot be examined");
    ASSERT_EQ(::mkdir(path.c_str(), 0700), 0);
    const std::tuple<uid_t, mode_t, const char*> cases[] = {{0, 0755, ""},
                                                            {0, 0775, "may be changed by group 4"},
                                                            {0, 0702, "may be changed by everybody"},
                                                            {1000, 0500, "belongs to user 1000"}};
    for (const auto& [owner, mode, why] : cases) {
        if (::chown(path.c_str(), owner, 4) != 0)
            GTEST_SKIP() << "only root can give files away";
        ASSERT_EQ(::chmod(path.c_str(), mode), 0);
        EXPECT_EQ(FileRights::Of(path).WhyNotTrusted(), why);
    }
}
