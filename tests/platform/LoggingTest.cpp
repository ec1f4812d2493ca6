#include "platform/context/Logging.h"
#include "platform/security/LogText.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <glog/logging.h>
#include <gtest/gtest.h>

namespace {

QStringList Files(const QTemporaryDir& folder) {
    return QDir(folder.path()).entryList(QDir::Files, QDir::Name);
}

void Touch(const QTemporaryDir& folder, const QString& name) {
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
}

} // namespace

TEST(Logging, KeepsTheNewestFilesAndEndsTwiceInPeace) {
    const QTemporaryDir folder;
    for (int day = 10; day < 22; ++day)
        Touch(folder, QStringLiteral("%1-User.202001%2-120000.7").arg((day + 1) % 2).arg(day));
    Touch(folder, QStringLiteral("1-Other.20200101-120000.7"));

    FLAGS_logtostderr = true; // as a user's environment can set it
    FLAGS_minloglevel = google::GLOG_FATAL;
    InitLogger("1-User", folder.path().toStdString(), 10, 10);
    LOG(INFO) << "first line";
    LOG(ERROR) << "an error belongs into the same file";
    qWarning("a warning of Qt's");
    ReleaseLogger();
    ReleaseLogger();

    const QStringList files = Files(folder);
    ASSERT_EQ(files.size(), 11) << files.join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(files.first(), QStringLiteral("0-User.20200113-120000.7")) << "of an earlier session";
    EXPECT_TRUE(files.contains(QStringLiteral("1-Other.20200101-120000.7")));
    QFile newest(folder.filePath(files.last()));
    ASSERT_TRUE(newest.open(QIODevice::ReadOnly));
    const QByteArray text = newest.readAll();
    EXPECT_TRUE(text.contains("first line"));
    EXPECT_TRUE(text.contains("an error belongs"));
    EXPECT_TRUE(text.contains("Qt: a warning of Qt's"));
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    if (QDir::separator() == QLatin1Char('/')) { // what else there is, Qt does not look at by itself
        EXPECT_FALSE(newest.permissions() & others) << "a log is its user's";
    }
}

TEST(Logging, TextFromOutsideStaysOnItsLine) {
    const std::string longest(500, 'x');
    const std::string shorter(499, 'x');
    const struct {
        std::string text;
        std::string line;
    } cases[] = {
        {"Zoë – 漢 😀", "Zoë – 漢 😀"},
        {"a\nI20260302 forged", "a\uFFFDI20260302 forged"},
        {"\r\n\t\x1b[2J\x7f", "\uFFFD\uFFFD\uFFFD\uFFFD[2J\uFFFD"},
        {"a\u0085b\u2028c\u202ed", "a\uFFFDb\uFFFDc\uFFFDd"},
        {"\xff\xfe", "\uFFFD\uFFFD"},
        {longest, longest},
        {longest + 'x', longest + "…"},
        {shorter + "😀", shorter + "…"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(LogText(row.text), row.line);
}
