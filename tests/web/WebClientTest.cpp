// The web client against the stand-in web service, whatever that does wrong.
#include "support/StandInWeb.h"

#include <QCryptographicHash>
#include <QTcpServer>
#include <QTcpSocket>
#include <future>

using namespace std::chrono_literals;

namespace {

constexpr int Many = 1000000;

struct Web : testing::Test, StandInWeb {
    void SetUp() override {
        settings.silence = 400ms;
        settings.callDeadline = 1500ms;
        settings.proxy = QStringLiteral("http://127.0.0.1:1"); // not asked for the own machine
        client.Configure(settings);
        WriteFile("log +1 %41 ß.zip", bytes);
    }

    void WriteFile(const char* name, const QByteArray& content) const {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QString Path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
    std::wstring Wide(const char* name) const { return Path(name).toStdWString(); }
    QByteArray Content(const char* name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    /// All that a report does, up to the first failure, on a worker thread.
    WebFailure Report() {
        return std::async(std::launch::async,
                          [this] {
                              WebFailure failure;
                              const NubraUploadResponse upload = client.UploadFile(
                                  Wide("log +1 %41 ß.zip"), UploadType::DeviceLog, {}, &failure);
                              EXPECT_EQ(upload.code, failure.error == WebError::None ? 0 : -1);
                              if (upload.code != 0)
                                  return failure;
                              if (client.NotifyDeviceLogUpload("device", upload.data.fileKey, {}, &failure)
                                      .url.empty())
                                  return failure;
                              const std::string url =
                                  client.GetDownloadUrlByFileKey(upload.data.fileKey, {}, &failure);
                              if (url.empty())
                                  return failure;
                              if (!client.Feedback(R"({"method": "sendFeedBack"})", message, {}, &failure))
                                  return failure;
                              client.DownloadFile({url, Wide("back"), Many, md5}, {}, &failure);
                              return failure;
                          })
            .get();
    }

    const QTemporaryDir folder;
    const QByteArray bytes = QByteArray(300000, 'l') + "\r\n--";
    const std::string md5 = QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex().toStdString();
    std::string message;
};

TEST_F(Web, EveryMannerOfUploadBringsTheFileThere) {
    for (const char* manner : {"put", "put no-notice", "form", "form no-notice"}) {
        Tell(std::string("web-upload ") + manner);
        QFile::remove(Path("back"));
        EXPECT_EQ(Report().words, "");
        EXPECT_EQ(Content("back"), bytes) << manner;
        EXPECT_EQ(message, "Thank you for your report.");
    }
}

TEST_F(Web, EveryFaultEndsInItsTimeAndLeavesNothingBehind) {
    struct Case {
        const char* endpoint;
        const char* fault;
        WebError error;
        const char* words;
        int asked = 1;
        const char* manner = "put";
    };
    // In a policy METHOD@ADDRESS@HEADER.
    const std::vector<Case> cases = {
        {"policy", "slow 5", WebError::TimedOut, "not a byte", 2},
        {"policy", "empty", WebError::BadAnswer, "no method"},
        {"policy", "DELETE@STORE@", WebError::BadAnswer, "no method"},
        {"policy", "PUT@http://198.51.100.7/@", WebError::NotAllowed, "http://198.51.100.7/"},
        {"policy", R"(PUT@STORE@{"name": "X", "value": "a\r\nY: b"})", WebError::BadAnswer, "header"},
        {"policy", R"(PUT@STORE@{"name": "X\r\nY", "value": "b"})", WebError::BadAnswer, "header"},
        {"policy", R"(PUT@STORE@{"name": "Content-Length", "value": "1"})", WebError::BadAnswer, "header"},
        {"policy", R"(PUT@STORE@{"name": "pROXY-x", "value": "1"})", WebError::BadAnswer, "header"},
        {"policy", "drip 0.1", WebError::TimedOut, "time for it is over"},
        {"upload", "503", WebError::Refused, "503: told to fail", 2},
        {"upload", "redirect http://localhost:1/", WebError::NotAllowed, "another host"},
        {"upload", "empty", WebError::BadAnswer, "no code", 1, "put no-notice"},
        {"upload", "wrong", WebError::BadAnswer, "no JSON", 1, "form no-notice"},
        {"upload", R"(answer {"code": 7, "message": "full"})", WebError::Refused, "code 7: full", 1,
         "put no-notice"},
        {"upload", R"(answer {"code": "x"})", WebError::BadAnswer, "", 1, "put no-notice"},
        {"upload", R"(answer {"code": 0, "data": {"fileKey": "other"}})", WebError::BadAnswer, "key", 1,
         "put no-notice"},
        {"notice", "half", WebError::Unreachable, "", 2},
        {"log", "answer [{}]", WebError::BadAnswer, "no JSON"},
        {"log", "empty", WebError::BadAnswer, "log"},
        {"url", "large", WebError::BadAnswer, "1 MiB"},
        {"url", "redirect", WebError::Refused, "without end", 6},
        {"feedback", "gone", WebError::Unreachable, ""},
        {"feedback", "slow 5", WebError::TimedOut, "not a byte"},
        {"feedback", "500", WebError::Refused, "500"},
        {"feedback", "empty", WebError::BadAnswer, "no code"},
        {"feedback", R"(answer {"code": 3, "message": "not now"})", WebError::Refused, "not now"},
        {"file", "half", WebError::Unreachable, "", 2},
        {"file", "500", WebError::Refused, "500", 2},
        {"file", "empty", WebError::WrongDigest, "digest"},
        {"file", "large", WebError::TooLarge, "1000000"},
    };
    WriteFile("back", "old");
    int asked = 0;
    std::string endpoint;
    QObject::connect(&service, &WebService::Requested, &service,
                     [&](const QString& name) { asked += name.toStdString() == endpoint; });
    for (const Case& row : cases) {
        const std::string name = row.endpoint + std::string(" ") + row.fault;
        QString fault = QString::fromUtf8(row.fault);
        if (const QStringList policy = fault.split(QLatin1Char('@')); policy.size() == 3)
            fault = QStringLiteral(R"(answer {"data": {"fileKey": "k", "uploadPolicyVo": {"httpMethod": "%1",
                                      "uploadUrl": "%2", "headerFields": [%3]}}})")
                        .arg(policy[0], policy[1], policy[2]);
        fault.replace(QLatin1String("STORE"), settings.server + QStringLiteral("/store"));
        Tell(std::string("web-upload ") + row.manner);
        Tell("web " + (endpoint = row.endpoint) + ' ' + fault.toStdString());
        asked = 0;
        QElapsedTimer clock;
        clock.start();
        const WebFailure failure = Report();
        QCoreApplication::processEvents(); // the requests are told to this thread
        EXPECT_LT(clock.elapsed(), 4000) << name;
        EXPECT_EQ(static_cast<int>(failure.error), static_cast<int>(row.error))
            << name << ": " << failure.words;
        EXPECT_NE(failure.words.find(row.words), std::string::npos) << name << ": " << failure.words;
        EXPECT_EQ(asked, row.asked) << name;
        EXPECT_EQ(Content("back"), "old") << name;
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 2) << name;
        Tell("web " + endpoint + " ok");
    }
    QDir(store.path()).removeRecursively();
    EXPECT_EQ(Report().words, "the server answered 500: the file could not be kept");
}

TEST_F(Web, CancelWrongFilesAndTheGuiThreadEndACallAtOnce) {
    WebFailure failure;
    EXPECT_EQ(client.UploadFile(Wide("log +1 %41 ß.zip"), UploadType::DeviceLog, {}, &failure).code, -1);
    EXPECT_EQ(failure.error, WebError::Internal);

    const auto upload = [&](const char* name, const TaskControl& control) {
        std::async(std::launch::async, [&] {
            client.UploadFile(Wide(name), UploadType::Attachment, control, &failure);
        }).get();
        return failure.error;
    };
    WriteFile("empty", "");
    EXPECT_EQ(upload("empty", {}), WebError::File);
    EXPECT_EQ(upload("missing", {}), WebError::File);
    EXPECT_EQ(upload(".", {}), WebError::File);
    TaskControl grows;
    grows.onProgress = [this](std::int64_t, std::int64_t) { WriteFile("grows", QByteArray(9, 'y')); };
    WriteFile("grows", QByteArray(Many, 'x'));
    EXPECT_EQ(upload("grows", grows), WebError::File);

    const TaskControl control;
    Tell("web upload slow 5");
    QObject::connect(
        &service, &WebService::Requested, &service, [&] { control.cancellation.Cancel(); },
        Qt::DirectConnection);
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(upload("log +1 %41 ß.zip", control), WebError::Cancelled);
    EXPECT_LT(clock.elapsed(), 1000);
}

/// Qt itself repeats a request when the server hangs up without a word.
TEST_F(Web, FeedbackGoesThroughTheProxyAndNeverTwice) {
    QTcpServer proxy;
    ASSERT_TRUE(proxy.listen(QHostAddress::LocalHost));
    QByteArray heads;
    QObject::connect(&proxy, &QTcpServer::newConnection, [&] {
        QTcpSocket* socket = proxy.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, [&heads, socket] {
            heads += socket->readAll();
            if (heads.endsWith("{}"))
                socket->close();
        });
    });
    settings.server = QStringLiteral("http://reports.test/api/");
    settings.httpHosts = QStringList{QStringLiteral("reports.test")};
    settings.proxy = QStringLiteral("http://127.0.0.1:%1").arg(proxy.serverPort());
    client.Configure(settings);
    WebFailure failure;
    auto call = std::async(std::launch::async, [&] { return client.Feedback("{}", message, {}, &failure); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return call.wait_for(0s) == std::future_status::ready; }));
    EXPECT_FALSE(call.get());
    EXPECT_EQ(failure.error, WebError::Unreachable) << failure.words;
    EXPECT_EQ(heads.count("POST http://reports.test/api/remote/call HTTP/1.1\r\n"), 1) << heads.constData();
    EXPECT_EQ(heads.count("POST"), 1) << heads.constData();
}

} // namespace
