// The steps of a log report with the real web client, against the stand-in web service.
#include "feedback/LogReport.h"
#include "feedback/ReportArchive.h"
#include "support/StandInWeb.h"

#include <QDir>
#include <QJsonDocument>
#include <future>
#include <set>
#include <zip.h>

namespace {

struct AfternoonClock : Clock {
    QDateTime Now() const override { return {{2026, 3, 2}, {15, 4, 5}}; }
};

class LogReportRun : public testing::Test, protected StandInWeb {
protected:
    void SetUp() override {
        for (const char* name : {"log", "log/older", "temp"})
            ASSERT_TRUE(folder.mkpath(QString::fromLatin1(name)));
        Write("log/1-User.1", "new lines");
        Write("log/older/1-User.0", "old lines");
    }

    void Write(const char* name, const QByteArray& content) {
        QFile file(folder.filePath(QString::fromUtf8(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    std::wstring Path(const char* name) const {
        return folder.filePath(QString::fromLatin1(name)).toStdWString();
    }
    QStringList Left() const {
        return QDir(folder.filePath(QStringLiteral("temp")))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    LogReportOutcome Run(const Cancellation& cancellation = {}) {
        FileDto attachment;
        attachment.name = "fault.png";
        attachment.url = "https://files.example.com/7";
        const LogReportRequest request{Path("log"),
                                       Path("temp"),
                                       "Hall 3",
                                       "the context string",
                                       QStringLiteral("It „freezes“."),
                                       QStringLiteral("a@b.example"),
                                       {attachment}};
        return std::async(
                   std::launch::async,
                   [&] { return LogReport(request, client, clock).Run(cancellation, ProgressMeter()); })
            .get();
    }

    const QTemporaryDir place;
    const QDir folder{place.path()};
    const AfternoonClock clock{};
};

TEST_F(LogReportRun, SendsTheLogThenTheDocument) {
    const LogReportOutcome outcome = Run();
    EXPECT_TRUE(outcome.ok) << outcome.logLine;
    EXPECT_EQ(outcome.message, QStringLiteral("Thank you for your report."));
    EXPECT_EQ(Left(), QStringList());
    EXPECT_NE(lines.str().find("RYXLOG-20260302150405.zip"), std::string::npos) << lines.str();
    EXPECT_NE(lines.str().find("the context string"), std::string::npos) << lines.str();

    QFile sent(QDir(service.Store().Folder()).filePath(QStringLiteral("feedback-1.json")));
    ASSERT_TRUE(sent.open(QIODevice::ReadOnly));
    const QByteArray document = sent.readAll();
    QByteArray logUrl = document.mid(document.indexOf(QByteArray::fromStdString(service.Address())));
    logUrl.truncate(logUrl.indexOf('"'));
    const QByteArray expected = QByteArray(R"({
        "interfaceName": "com.ifp.remote.platform.remote.service.api.api.FeedBackApiService",
        "method": "sendFeedBack",
        "superParams": [{
            "type": "com.ifp.remote.platform.remote.service.api.dto.feedback.WebFeedbackDto",
            "value": {
                "content": "It „freezes“.", "email": "a@b.example",
                "title": "Windows-Hall 3", "platform": "Windows",
                "annex": [{"name": "devicelog_Hall 3_0302150405.zip", "url": "LOG"},
                          {"name": "fault.png", "url": "https://files.example.com/7"}]}}]})")
                                    .replace("LOG", logUrl);
    EXPECT_EQ(QJsonDocument::fromJson(document).toJson(), QJsonDocument::fromJson(expected).toJson());
}

TEST_F(LogReportRun, StopsAtTheStepThatFailsAndLeavesNoArchive) {
    const struct {
        const char* fault;
        const char* line;
        WebError error;
    } cases[] = {
        {"policy 503", "file failed to UploadToNubra", WebError::Refused},
        {"log empty", "NotifyDeviceLogUpload failed.", WebError::BadAnswer},
        {"url wrong", "GetDownloadUrlByFileKey failed.", WebError::BadAnswer},
        {"feedback 500", "Feedback failed: the server answered 500: told to fail", WebError::Refused}};
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.fault);
        const std::string endpoint =
            std::string(expected.fault).substr(0, std::string(expected.fault).find(' '));
        Tell(std::string("web ") + expected.fault);
        const LogReportOutcome outcome = Run();
        Tell("web " + endpoint + " ok");
        EXPECT_FALSE(outcome.ok);
        EXPECT_EQ(outcome.error, expected.error);
        EXPECT_EQ(outcome.message.isEmpty(), outcome.step != ReportStep::Send);
        EXPECT_EQ(outcome.said.toStdString(), outcome.error == WebError::Refused ? "told to fail" : "");
        EXPECT_EQ(outcome.logLine, expected.line);
        EXPECT_EQ(Left(), QStringList());
    }
    const Cancellation cancelled;
    Tell("web policy slow 60");
    QObject::connect(
        &service, &WebService::Requested, &service, [&] { cancelled.Cancel(); }, Qt::DirectConnection);
    const LogReportOutcome outcome = Run(cancelled);
    EXPECT_EQ(outcome.error, WebError::Cancelled);
    EXPECT_EQ(outcome.logLine, "file failed to UploadToNubra");
    QDir(folder.filePath(QStringLiteral("log"))).removeRecursively();
    EXPECT_EQ(Run().logLine, "file failed to zip");
    EXPECT_EQ(Left(), QStringList());
}

TEST_F(LogReportRun, SavedAsAnArchiveItHoldsEverythingAndReplacesNothingUnasked) {
    Write("fault.png", "password update: ab");
    ASSERT_TRUE(folder.mkpath(QStringLiteral("more")));
    Write("more/fault.png", "another");
    const QString target = folder.filePath(QStringLiteral("report.zip"));
    ReportArchive archive{
        Path("log"),
        Path("temp"),
        QStringLiteral("It freezes."),
        {folder.filePath(QStringLiteral("fault.png")), folder.filePath(QStringLiteral("more/fault.png"))},
        target};
    const auto save = [&archive] {
        return std::async(std::launch::async, [&] { return archive.Save({}); }).get();
    };
    Write("log/1-User.1", "a\nUnlock password update: 0123abc\nz");
    EXPECT_EQ(save(), ReportArchive::Result::Saved);
    std::set<std::string> names;
    zip_t* zip = zip_open(target.toUtf8().constData(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
    ASSERT_TRUE(zip);
    for (zip_int64_t i = 0; i < zip_get_num_entries(zip, 0); ++i)
        names.insert(zip_get_name(zip, static_cast<zip_uint64_t>(i), 0));
    for (const auto& [name, masked] : {std::pair{"log/1-User.1", "a\nUnlock password update: *******\nz"},
                                       {"attachments/fault.png", "password update: **"}}) {
        QByteArray packed(100, '\0');
        zip_file_t* file = zip_fopen(zip, name, 0);
        packed.truncate(static_cast<int>(zip_fread(file, packed.data(), 100)));
        EXPECT_EQ(packed, masked) << "a user will have it";
        zip_fclose(file);
    }
    zip_discard(zip);
    EXPECT_EQ(names, (std::set<std::string>{"attachments/2-fault.png", "attachments/fault.png",
                                            "log/1-User.1", "log/older/1-User.0", "report.txt"}));
    Write("report.zip", "precious");
    EXPECT_EQ(save(), ReportArchive::Result::Exists);
    EXPECT_EQ(QFileInfo(target).size(), 8);
    archive.mayReplace = true;
    EXPECT_EQ(save(), ReportArchive::Result::Saved);
    EXPECT_GT(QFileInfo(target).size(), 100);
    archive.attachments.append(folder.filePath(QStringLiteral("gone.png")));
    EXPECT_EQ(save(), ReportArchive::Result::NoAttachment) << "nothing is dropped in silence";
    EXPECT_EQ(folder.entryList({QStringLiteral("report.zip*")}).size(), 1);
    EXPECT_EQ(Left(), QStringList());
}

} // namespace
