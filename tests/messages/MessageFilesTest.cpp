// Files of messages: their names, and how they come from the web service with all its faults.
#include "messages/MessageFiles.h"
#include "messages/FileNames.h"
#include "support/StandInWeb.h"

#include <QDir>

namespace {

class MessageFilesTest : public testing::Test, protected StandInWeb {
protected:
    void SetUp() override {
        settings.silence = std::chrono::milliseconds(500);
        RyxWebClient::Instance()->Configure(settings);
    }
    QString Path(const QString& name) const { return folder.filePath(name); }
    void Write(const QString& name, const QByteArray& content) const {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QStringList Arrived() const {
        // Wine has no streams: marks are files of their own there.
        return QDir(Path(QStringLiteral("in")))
            .entryList(QDir::Files | QDir::Hidden, QDir::Name)
            .filter(QRegularExpression(QStringLiteral("^(?!.*Zone\\.Identifier)")));
    }
    Message Offer(const QString& name, const std::string& as) {
        Message message;
        const auto offered = service.Offer(Path(name), "file");
        message.file.url = offered->first;
        message.file.md5 = QString::fromStdString(offered->second).toUpper().toStdString();
        message.file.name = as;
        return message;
    }
    MessageFile Fetch(const Message& message) {
        const int id = history.Add(message);
        files.Fetch(id);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return files.Of(id).stage != MessageFile::Stage::Loading; }, 20000));
        return files.Of(id);
    }

    const QTemporaryDir folder;
    MessageHistory history{folder.filePath(QStringLiteral("messages.json"))};
    MessageFiles files{history, folder.filePath(QStringLiteral("in")), 1000000};
};

TEST(FileNames, NamesFromElsewhereAreHarmless) {
    const struct {
        QString name, safe;
    } cases[] = {{QStringLiteral("plan.pdf"), QStringLiteral("plan.pdf")},
                 {QStringLiteral("..\\..\\CON .exe"), QStringLiteral("_CON.exe")},
                 {QStringLiteral("/etc/passwd"), QStringLiteral("passwd")},
                 {QStringLiteral("a/.."), QStringLiteral("file")},
                 {QString(), QStringLiteral("file")},
                 {QStringLiteral(" .hidden. . "), QStringLiteral("hidden")},
                 {QStringLiteral("com1.tar.gz"), QStringLiteral("_com1.tar.gz")},
                 {QStringLiteral("COM10.txt"), QStringLiteral("COM10.txt")},
                 {QStringLiteral("lpt²"), QStringLiteral("_lpt²")},
                 {QStringLiteral("a\u202Efdp.exe\n\u2069"), QStringLiteral("afdp.exe")},
                 {QStringLiteral("a:b|c?.txt"), QStringLiteral("abc.txt")},
                 {QStringLiteral("خطة 2.pdf"), QStringLiteral("خطة 2.pdf")},
                 {QString(300, QLatin1Char('x')) + QStringLiteral(".pdf"),
                  QString(116, QLatin1Char('x')) + QStringLiteral(".pdf")},
                 {QString(100, QChar(0x4E00)) + QStringLiteral(".pdf"),
                  QString(65, QChar(0x4E00)) + QStringLiteral(".pdf")}};
    for (const auto& row : cases)
        EXPECT_EQ(FileNames::Safe(row.name), row.safe) << row.name.toStdString();
    for (const char* program : {"a.exe", "a.PS1", "a.pdf.lnk", "a.sh", "a.html", "a"})
        EXPECT_TRUE(FileNames::IsProgram(QLatin1String(program))) << program;
    for (const char* document : {"a.pdf", "a.exe.png", "a.TXT", "a.docx"})
        EXPECT_FALSE(FileNames::IsProgram(QLatin1String(document))) << document;
}

TEST_F(MessageFilesTest, EveryFaultIsToldAndLeavesNothingBehind) {
    Write(QStringLiteral("a"), QByteArray(300000, 'a') + QByteArray(300000, 'b'));
    QDir(folder.path()).mkdir(QStringLiteral("in"));
    QFile left(Path(QStringLiteral("in/.01234567-89ab-cdef-0123-456789abcdef.part.Xy")));
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.setFileTime(QDateTime::currentDateTime().addDays(-2), QFileDevice::FileModificationTime);
    left.close();
    const struct {
        const char* fault;
        WebError error;
        int asked;
    } cases[] = {{"ok", WebError::None, 1},        {"half once", WebError::None, 2},
                 {"half anew", WebError::None, 2}, {"half", WebError::Unreachable, 2},
                 {"404", WebError::Refused, 1},    {"empty", WebError::WrongDigest, 1},
                 {"large", WebError::TooLarge, 1}, {"huge", WebError::TooLarge, 1},
                 {"drip 5", WebError::TimedOut, 2}};
    int asked = 0;
    QObject::connect(&service, &WebService::Requested, &service, [&asked] { ++asked; });
    for (const auto& row : cases) {
        Tell(std::string("web file ") + row.fault);
        asked = 0;
        const MessageFile file = Fetch(Offer(QStringLiteral("a"), "a.pdf"));
        QCoreApplication::processEvents();
        EXPECT_EQ(static_cast<int>(file.outcome.error), static_cast<int>(row.error)) << row.fault;
        EXPECT_EQ(asked, row.asked) << row.fault;
        EXPECT_EQ(file.stage == MessageFile::Stage::Saved, row.error == WebError::None) << row.fault;
        if (!file.outcome.path.isEmpty()) {
            EXPECT_EQ(QFileInfo(file.outcome.path).size(), 600000) << row.fault;
        }
    }
    EXPECT_EQ(QString::fromStdString(lines.str()).count(QStringLiteral(": 206")), 1) << lines.str();
    EXPECT_EQ(Arrived(), (QStringList{QStringLiteral("a (2).pdf"), QStringLiteral("a (3).pdf"),
                                      QStringLiteral("a.pdf")}));
    Tell("web file ok");
    Message message = Offer(QStringLiteral("a"), "b");
    message.file.url = "http://198.51.100.7/b";
    EXPECT_EQ(Fetch(message).outcome.error, WebError::NotAllowed);
    const QString saved = history.Messages().front().savedAs;
    EXPECT_EQ(saved, Path(QStringLiteral("in/a.pdf")));
    files.CopyTo(1, saved);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return files.Of(1).copy.path == Path(QStringLiteral("in/a (4).pdf")); }));
    files.CopyTo(1, Path(QStringLiteral("nowhere/a.pdf")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return files.Of(1).copy.error == WebError::File; }));
}

TEST_F(MessageFilesTest, ADownloadIsCancelledAndBegunAgain) {
    Write(QStringLiteral("a"), QByteArray(1000, 'a'));
    Tell("web file drip 0.05");
    const int id = history.Add(Offer(QStringLiteral("a"), "a.pdf"));
    files.Fetch(id);
    QSignalSpy changed(&files, &MessageFiles::Changed);
    ASSERT_TRUE(QTest::qWaitFor([&] { return files.Of(id).percent > 0; }));
    files.Cancel(id);
    EXPECT_EQ(files.Of(id).outcome.error, WebError::Cancelled);
    Tell("web file ok");
    files.Fetch(id);
    EXPECT_TRUE(QTest::qWaitFor([&] { return files.Of(id).stage == MessageFile::Stage::Saved; }));
    EXPECT_EQ(Arrived(), QStringList{QStringLiteral("a.pdf")});
}

TEST_F(MessageFilesTest, APictureIsKnownByItsContent) {
    QImage picture(4000, 2000, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(Path(QStringLiteral("picture")), "PNG"));
    QFile file(Path(QStringLiteral("picture")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray bytes = file.readAll();
    Write(QStringLiteral("broken"), bytes.left(bytes.size() / 2));
    const int width = bytes.indexOf("IHDR") + 4;
    Write(QStringLiteral("bomb"), bytes.replace(width, 8, QByteArray::fromHex("0000ffff0000ffff")));
    Write(QStringLiteral("text"), "hello");
    const struct {
        const char* file;
        QSize size;
    } cases[] = {{"picture", {1920, 960}}, {"broken", {0, 0}}, {"bomb", {0, 0}}, {"text", {0, 0}}};
    for (const auto& row : cases)
        EXPECT_EQ(ReadPicture(Path(QLatin1String(row.file))).size(), row.size) << row.file;
    files.LookAt(1);
    Fetch(Offer(QStringLiteral("picture"), "a.pdf"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !files.Of(1).picture.isNull(); }));
    files.LookAt(0);
    EXPECT_TRUE(files.Of(1).picture.isNull()) << "kept while it is seen";
}

} // namespace
