// How long it takes to pack 200 MB of logs, beside zip -6, and how much memory; to upload 50 MB, beside curl
// to the same web service; and for how long the user interface is deaf while a report does both.
#include "WebService.h"
#include "feedback/AttachmentStrip.h"
#include "feedback/UFeedback.h"
#include "platform/context/AppConfigData.h"
#include "platform/context/AppContextData.h"
#include "platform/files/ZipUtility.h"
#include "platform/web/RyxWebClient.h"
#include "support/PairedRun.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <future>
#include <random>
#include <sstream>
#include <sys/resource.h>

namespace {

constexpr int Megabyte = 1000000;
constexpr double LongestPauseMs = 100;
constexpr double MostMemory = 16; // in MiB: a file is never held as a whole

[[noreturn]] void Give(const char* reason) {
    std::fprintf(stderr, "%s\n", reason);
    std::exit(1);
}

/// Lines as a program writes them: times and numbers that go up, a few dozen messages, now and then a long
/// value.
void WriteLog(const QString& path, int bytes, unsigned seed) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        Give("cannot write a log");
    std::mt19937 random(seed);
    for (int line = 0; file.pos() < bytes; ++line) {
        const unsigned value = random();
        file.write(
            QStringLiteral("I20260302 10:%1:%2.%3 %4 Source%5.cpp:%6] Function%5 message %7 of key %8, %9\n")
                .arg(line / 6000 % 60)
                .arg(line / 100 % 60)
                .arg(value % 1000000)
                .arg(4711 + value % 5)
                .arg(value % 40)
                .arg(value % 300)
                .arg(line)
                .arg(value % 80)
                .arg(value % 7 ? QStringLiteral("done") : QString::number(random(), 16))
                .toLatin1());
    }
}

double Seconds(const std::function<bool()>& act) {
    QElapsedTimer clock;
    clock.start();
    if (!std::async(std::launch::async, act).get())
        Give("the work to be measured failed");
    return static_cast<double>(clock.nsecsElapsed()) / 1e9;
}

bool Run(const QString& program, const QStringList& arguments, const QString& folder) {
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, arguments);
    return process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

/// The most memory that was ever in use, in MiB.
double PeakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

void MeasurePacking(const QTemporaryDir& folder) {
    const QString logs = folder.filePath(QStringLiteral("logs"));
    QDir().mkpath(logs);
    for (unsigned i = 0; i < 20; ++i)
        WriteLog(logs + QStringLiteral("/1-User.%1").arg(i), 10 * Megabyte, i);
    const QString ours = folder.filePath(QStringLiteral("ours.zip"));
    const QString theirs = folder.filePath(QStringLiteral("theirs.zip"));
    const double before = PeakMemory();
    PrintRow(Compare(
        {"packing 200 MB of logs", "MB/s", 0, 0, 0, 1.0, true}, 3,
        [&] {
            return 200 / Seconds([&] {
                       return ZipUtility::CreateZipFromDir(logs.toStdWString(), ours.toStdWString());
                   });
        },
        [&] {
            QFile::remove(theirs);
            return 200 / Seconds([&] {
                       return Run(QStringLiteral("zip"),
                                  {QStringLiteral("-q6r"), theirs, QStringLiteral(".")}, logs);
                   });
        }));
    const double size = static_cast<double>(QFile(ours).size()) / Megabyte;
    const double otherSize = static_cast<double>(QFile(theirs).size()) / Megabyte;
    PrintRow({"  size of the archive", "MB", size, otherSize, size / otherSize, 1.05});
    const double memory = PeakMemory() - before;
    PrintRow({"  most memory, beyond the start's", "MiB", memory, MostMemory, memory / MostMemory, 1.0});
}

void MeasureUpload(const QTemporaryDir& folder) {
    const QString file = folder.filePath(QStringLiteral("upload.zip"));
    WriteLog(file, 50 * Megabyte, 99);
    std::ostringstream lines;
    EventLog log(lines);
    WebService service(log, folder.filePath(QStringLiteral("store")));
    if (!service.Listen(0).isEmpty())
        Give("the web service does not start");
    RyxWebClient client;
    WebSettings settings;
    settings.server = QString::fromStdString(service.Address());
    client.Configure(settings);
    PrintRow(Compare(
        // Qt hands a body from the caller's thread to its own, 16 KiB at a time.
        {"uploading 50 MB", "MB/s", 0, 0, 0, 0.5, true}, 11,
        [&] {
            return 50 / Seconds([&] {
                       return client.UploadFile(file.toStdWString(), UploadType::DeviceLog).code == 0;
                   });
        },
        [&] {
            const NubraUploadPolicyData policy =
                service.Store().Announce("upload.zip", service.Address() + "/store");
            const auto header = policy.uploadPolicyVo.headerFields.back();
            return 50 / Seconds([&] {
                       return Run(QStringLiteral("curl"),
                                  {QStringLiteral("--silent"), QStringLiteral("--fail"),
                                   QStringLiteral("--upload-file"), file, QStringLiteral("--header"),
                                   QString::fromStdString(header.name + ": " + header.value),
                                   QString::fromStdString(policy.uploadPolicyVo.uploadUrl +
                                                          "?fileKey=" + policy.fileKey)},
                                  folder.path());
                   });
        }));
}

/// The page itself, with the logs and the file of the other measurements.
void MeasurePauses(const QTemporaryDir& folder) {
    std::ostringstream lines;
    EventLog log(lines);
    WebService service(log, folder.filePath(QStringLiteral("store")));
    if (!service.Listen(0).isEmpty())
        Give("the web service does not start");
    WebSettings settings;
    settings.server = QString::fromStdString(service.Address());
    RyxWebClient::Instance()->Configure(settings);
    AppConfigData::Instance()->logFolder = folder.filePath(QStringLiteral("logs")).toStdString();
    AppConfigData::Instance()->dataFolder = folder.filePath(QStringLiteral("data")).toStdString();

    AppContextData::Instance()->SetContextText("the device under test");
    UFeedback page;
    page.resize(1200, 800);
    page.show();
    page.findChild<QTextEdit*>(QStringLiteral("description"))->setPlainText(QStringLiteral("It is slow."));
    auto* submit = page.findChild<QPushButton*>(QStringLiteral("submitButton"));
    page.findChild<AttachmentStrip*>()->AddFiles({folder.filePath(QStringLiteral("upload.zip"))});
    bool isSent = false;
    QObject::connect(&page, &UFeedback::LogReported, [&isSent](const QString&, bool ok) {
        isSent = ok;
        QCoreApplication::quit();
    });
    QTimer heart;
    QElapsedTimer clock;
    double longest = 0;
    QObject::connect(&heart, &QTimer::timeout, [&] {
        longest = std::max(longest, static_cast<double>(clock.nsecsElapsed()) / 1e6);
        clock.start();
        if (submit->isEnabled()) // the attachment is there
            submit->click();
    });
    clock.start();
    heart.start(1);
    QCoreApplication::exec();
    if (!isSent)
        Give("the report was not sent");
    PrintRow({"longest pause during a report", "ms", longest, LongestPauseMs, longest / LongestPauseMs, 1.0});
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    PrintHeading();
    MeasurePacking(folder);
    MeasureUpload(folder);
    MeasurePauses(folder);
    return 0;
}
