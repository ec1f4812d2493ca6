#include "enroll/EnrollmentFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>
#include <gtest/gtest.h>

namespace {

using State = EnrollmentFile::State;

void Write(const QString& path, const QByteArray& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QByteArray Padded(const char* text, int size) {
    return QByteArray(text).leftJustified(size, ' ');
}

constexpr char Good[] = R"({"code": "A1B2C3", "account": "a@b.example"})";
constexpr int Largest = 64 * 1024;

TEST(EnrollmentFile, EveryContentIsUsedOrRefusedWithAReason) {
    const struct {
        QByteArray text;
        State state;
    } files[] = {
        {Good, State::Usable},
        {QByteArray("\xEF\xBB\xBF") + Good, State::Usable},
        {Padded(Good, Largest), State::Usable},
        {Padded(Good, Largest + 1), State::TooLarge},
        {"", State::NotJson},
        {"code=A1B2C3", State::NotJson},
        {QByteArray("\xFF\xFE{\0}\0", 6), State::NotJson},
        {QByteArray(Largest, '['), State::NotJson},
        {"[]", State::WrongFormat},
        {"5", State::WrongFormat},
        {R"({"code": {}})", State::WrongFormat},
        {R"({"code": "A1B2C3", "account": "a@b.example", "tags": {"a": 1}})", State::WrongFormat},
        {R"({"code": "A1B2C3", "account": "a@b.example", "tags": ["a", {}]})", State::WrongFormat},
        {"null", State::Incomplete},
        {"{}", State::Incomplete},
        {R"({"code": "A1B2C3"})", State::Incomplete},
        {R"({"account": "a@b.example", "deviceName": "Hall"})", State::Incomplete},
    };
    const QTemporaryDir drive;
    for (const auto& [text, state] : files) {
        SCOPED_TRACE(text.left(60).constData());
        Write(drive.filePath(QStringLiteral("Enrollment.json")), text);
        const EnrollmentFile file = EnrollmentFile::FindOn(drive.path());
        EXPECT_EQ(file.state, state);
        EXPECT_EQ(file.content.code, state == State::Usable ? "A1B2C3" : "");
        EXPECT_EQ(file.Refusal().isEmpty(), state == State::Usable);
    }
}

TEST(EnrollmentFile, ItsTagsKeepTheRules) {
    const QTemporaryDir drive;
    QByteArray tags = R"(" hall ", "hall", " ", ")" + QByteArray(33, 'x') + '"';
    for (int i = 0; i < 30; ++i)
        tags += ", \"t" + QByteArray::number(i) + '"';
    Write(drive.filePath(QStringLiteral("Enrollment.json")),
          R"({"code": "A1B2C3", "account": "a@b.example", "tags": [)" + tags + "]}");
    const std::vector<std::string> kept = EnrollmentFile::FindOn(drive.path()).content.tags;
    ASSERT_EQ(kept.size(), 20u);
    EXPECT_EQ(kept[0], "hall");
    EXPECT_EQ(kept[19], "t18");
}

TEST(EnrollmentFile, TheNewestFileOfTheRightNameIsRead) {
    const QTemporaryDir drive;
    EXPECT_FALSE(EnrollmentFile::FindOn(drive.filePath(QStringLiteral("away"))).IsFound());
    QDir(drive.path()).mkdir(QStringLiteral("Enrollment-folder.json"));
    for (const char* other : {"Enrollment.txt", "MyEnrollment.json", "Enrollment.json.bak"})
        Write(drive.filePath(QLatin1String(other)), Good);
    EXPECT_FALSE(EnrollmentFile::FindOn(drive.path()).IsFound());

    const QString older = drive.filePath(QStringLiteral("Enrollment-z.json"));
    const QString newer = drive.filePath(QStringLiteral("Enrollment-a.json"));
    Write(older, Good);
    const auto creation = [](const QString& path) {
        const QFileInfo file(path);
        return file.birthTime().isValid() ? file.birthTime() : file.lastModified();
    };
    ASSERT_TRUE(QTest::qWaitFor([&] {
        QFile::remove(newer);
        Write(newer, "{}");
        return creation(newer) > creation(older);
    }));
    EXPECT_EQ(EnrollmentFile::FindOn(drive.path()).path, newer);
    EXPECT_EQ(EnrollmentFile::FindOn(drive.path()).state, State::Incomplete);
    QFile::remove(newer);
    EXPECT_TRUE(EnrollmentFile::FindOn(drive.path()).IsUsable());
}

TEST(EnrollmentFile, ALinkIsRefused) {
    const QTemporaryDir drive;
    const QString link = drive.filePath(QStringLiteral("Enrollment.json"));
    Write(drive.filePath(QStringLiteral("target")), Good);
    for (const char* target : {"target", "nowhere"}) {
        if (!QFile::link(drive.filePath(QLatin1String(target)), link))
            GTEST_SKIP() << "the system makes no link of this name";
        EXPECT_EQ(EnrollmentFile::FindOn(drive.path()).state, State::NotRegular) << target;
        QFile::remove(link);
    }
}

} // namespace
