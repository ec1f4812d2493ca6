#include "enroll/EnrollmentFile.h"
#include "platform/context/LanguageHelper.h"

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

void Expect(const QString& drive, State state, const char* refusal) {
    LanguageHelper::Instance()->SetLanguage(QStringLiteral("en"));
    const EnrollmentFile file = EnrollmentFile::FindOn(drive);
    EXPECT_EQ(file.state, state);
    EXPECT_EQ(file.content.code, state == State::Usable ? "A1B2C3" : "");
    EXPECT_EQ(file.content.tags.size(), state == State::Usable ? 2u : 0u);
    EXPECT_EQ(file.Refusal().remove(QStringLiteral("The enrolment file on the USB drive ")),
              QLatin1String(refusal));
}

TEST(EnrollmentFile, EveryContentIsUsedOrRefusedWithAReason) {
    const struct {
        QByteArray text;
        State state;
        const char* refusal = "";
    } files[] = {
        {Good, State::Usable},
        {QByteArray("\xEF\xBB\xBF") + Good, State::Usable},
        {QByteArray(Good).leftJustified(Largest), State::Usable},
        {QByteArray(Good).leftJustified(Largest + 1), State::TooLarge, "is larger than 64 KiB."},
        {"", State::NotJson, "is not JSON text in UTF-8."},
        {"code=A1B2C3", State::NotJson, "is not JSON text in UTF-8."},
        {QByteArray("\xFF\xFE{\0}\0", 6), State::NotJson, "is not JSON text in UTF-8."},
        {QByteArray(Largest, '['), State::NotJson, "is not JSON text in UTF-8."},
        {"{\"code\": \"\xE4\"}", State::NotJson, "is not JSON text in UTF-8."},
        {"[]", State::WrongFormat, "does not have the right format."},
        {R"({"code": {}})", State::WrongFormat, "does not have the right format."},
        {R"({"code": "A1B2C3", "account": "a@b.example", "tags": {"a": 1}})", State::WrongFormat,
         "does not have the right format."},
        {R"({"code": "A1B2C3", "account": "a@b.example", "tags": ["a", {}]})", State::WrongFormat,
         "does not have the right format."},
        {"null", State::Incomplete, "lacks the code or the account."},
        {"{}", State::Incomplete, "lacks the code or the account."},
        {R"({"code": "A1B2C3"})", State::Incomplete, "lacks the code or the account."},
        {R"({"account": "a@b.example", "deviceName": "Hall"})", State::Incomplete,
         "lacks the code or the account."},
    };
    const QTemporaryDir drive;
    for (const auto& [text, state, refusal] : files) {
        SCOPED_TRACE(text.left(60).constData());
        Write(drive.filePath(QStringLiteral("Enrollment.json")), text);
        Expect(drive.path(), state, refusal);
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
        Expect(drive.path(), State::NotRegular, "is a link, not a file of its own.");
        QFile::remove(link);
    }
}

} // namespace
