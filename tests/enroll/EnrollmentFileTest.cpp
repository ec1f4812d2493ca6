#include "enroll/EnrollmentFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

using State = EnrollmentFile::State;

void Write(const QString& path, const QByteArray& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

constexpr char Good[] =
    R"({"code": "A1B2C3", "account": "a@b.example", "tags": [" hall ", "hall", " ", "physics"]})";
constexpr int Largest = 64 * 1024;

TEST(EnrollmentFile, EveryContentIsUsedOrRefusedWithAReason) {
    const struct {
        QByteArray text;
        State state;
    } files[] = {
        {Good, State::Usable},
        {QByteArray("\xEF\xBB\xBF") + Good, State::Usable},
        {QByteArray(Good).leftJustified(Largest), State::Usable},
        {QByteArray(Good).leftJustified(Largest + 1), State::TooLarge},
        {"", State::NotJson},
        {"code=A1B2C3", State::NotJson},
        {QByteArray("\xFF\xFE{\0}\0", 6), State::NotJson},
        {QByteArray(Largest, '['), State::NotJson},
        {"[]", State::WrongFormat},
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
        EXPECT_EQ(file.content.tags.size(), state == State::Usable ? 2u : 0u);
        EXPECT_EQ(file.Refusal().isEmpty(), state == State::Usable);
    }
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
    Write(drive.filePath(QStringLiteral("target")), Good);
    for (const char* target : {"target", "nowhere"}) {
        const QString link = drive.filePath(QStringLiteral("Enrollment.json"));
        std::error_code error;
        std::filesystem::create_symlink(drive.filePath(QLatin1String(target)).toStdWString(),
                                        link.toStdWString(), error);
        if (error)
            GTEST_SKIP() << error.message();
        EXPECT_EQ(EnrollmentFile::FindOn(drive.path()).state, State::NotRegular) << target;
        QFile::remove(link);
    }
}

} // namespace
