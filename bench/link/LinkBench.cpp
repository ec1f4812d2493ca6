// How fast the link to the agent service is, beside a bare QLocalSocket doing the same with the same
// service process: round trips of one message, and messages that stream to a handler. And how many messages a
// second the whole front end takes that change nothing, beside those that nobody handles.
#include "app/MainWindow.h"
#include "controllers/MainController.h"
#include "platform/link/PipeClientService.h"
#include "platform/link/RyxPackage.h"
#include "platform/system/SystemPipe.h"
#include "support/PairedRun.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

constexpr PipeKey Key = PipeKey::MessageFile;

/// One way to exchange messages with the service. `onMessage` is called with each body that comes back.
struct Client {
    std::function<void(const std::string& body)> send;
    std::function<void(const std::string& body)> onMessage;
};

/// The bare side: the frame is written and cut as any program would, on one thread.
class BareClient : public Client {
public:
    explicit BareClient(const QString& name) {
        m_socket.connectToServer(name);
        m_socket.waitForConnected();
        send = [this](const std::string& body) {
            const std::string packet = RyxPackage::PackageData(Key, body);
            m_socket.write(packet.data(), static_cast<qint64>(packet.size()));
            if (flushes)
                m_socket.flush();
        };
        QObject::connect(&m_socket, &QLocalSocket::readyRead, [this] {
            const QByteArray bytes = m_socket.readAll();
            m_decoder.Append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
            FrameDecoder::Frame frame;
            while (m_decoder.Next(frame) == FrameDecoder::Result::Frame)
                onMessage(frame.body);
        });
    }

    /// Quicker for one message, slower for many.
    bool flushes = true;

private:
    QLocalSocket m_socket;
    FrameDecoder m_decoder;
};

class LinkClient : public Client {
public:
    explicit LinkClient(const QString& name, PipeKey key = Key) {
        m_link.SetServer({name, SystemPipe::Native().CurrentAccount()});
        QEventLoop loop;
        QObject::connect(&m_link, &PipeClientService::ConnectChanged, &loop, &QEventLoop::quit);
        m_link.Start();
        loop.exec();
        send = [this, key](const std::string& body) { m_link.Send(key, body); };
        m_received = QObject::connect(&m_link, &PipeClientService::DataReceived,
                                      [this](PipeKey, const std::string& body) { onMessage(body); });
    }
    ~LinkClient() {
        QObject::disconnect(m_received);
        m_link.Stop();
    }

private:
    PipeClientService& m_link = *PipeClientService::Instance();
    QMetaObject::Connection m_received;
};

/// Microseconds of one round trip, each sent when the one before has come back.
double RoundTrip(Client& client, std::size_t bodySize, int count) {
    const std::string body(bodySize, 'x');
    QEventLoop loop;
    int left = count;
    client.onMessage = [&](const std::string& received) {
        if (--left == 0)
            loop.quit();
        else
            client.send(received);
    };
    QElapsedTimer clock;
    clock.start();
    client.send(body);
    loop.exec();
    return static_cast<double>(clock.nsecsElapsed()) / 1000 / count;
}

/// Mebibytes a second of bodies that come back, as many on the way as `window` allows.
double Throughput(Client& client, const std::string& body, int count, int window) {
    QEventLoop loop;
    int toSend = count;
    int toCome = count;
    client.onMessage = [&](const std::string&) {
        if (toSend > 0) {
            --toSend;
            client.send(body);
        }
        if (--toCome == 0)
            loop.quit();
    };
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < std::min(window, count); ++i, --toSend)
        client.send(body);
    loop.exec();
    const double seconds = static_cast<double>(clock.nsecsElapsed()) / 1e9;
    return static_cast<double>(body.size()) * count / (1024 * 1024) / seconds;
}

/// The service: sends back every byte.
int Echo(const QString& name) {
    QLocalServer server;
    server.setSocketOptions(QLocalServer::UserAccessOption); // Wine knows no owner of a pipe without any
    QObject::connect(&server, &QLocalServer::newConnection, [&server] {
        QLocalSocket* socket = server.nextPendingConnection();
        QObject::connect(socket, &QLocalSocket::readyRead, [socket] {
            socket->write(socket->readAll());
            socket->flush();
        });
    });
    if (!server.listen(name))
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

/// Messages a second, with the whole window listening.
double MessagesToWindow(const QString& name, PipeKey key, int count) {
    const std::string status = R"({"status": 2})";
    LinkClient link(name, key);
    Throughput(link, status, 1, 1); // the first one may change something
    return Throughput(link, status, count, 256) * 1024 * 1024 / static_cast<double>(status.size());
}

void MeasureWindow(const QString& name) {
    MainController controller;
    controller.SetService(PipeClientService::Instance());
    const QMap<QString, ControllerBase*> controllers{{QStringLiteral("ryx"), &controller}};
    qApp->setProperty("controllers", QVariant::fromValue(controllers));
    MainWindow window;
    window.show();
    PrintRow(Compare(
        {"a status that changes nothing", "1/s", 0, 0, 0, 0.05, true}, 15,
        [&] { return MessagesToWindow(name, PipeKey::IotStatusNotify, 20000); },
        [&] { return MessagesToWindow(name, static_cast<PipeKey>(9999), 20000); }));
}

void Measure(const QString& name) {
    LinkClient link(name);
    BareClient bare(name);
    const std::string small(200, 'x');
    const std::string large(65536, 'x');
    PrintRow(Compare(
        {"echo, 200 bytes", "us", 0, 0, 0, 1.25}, 41, [&] { return RoundTrip(link, 200, 500); },
        [&] { return RoundTrip(bare, 200, 500); }));
    PrintRow(Compare(
        {"echo, 64 KiB", "us", 0, 0, 0, 1.25}, 41, [&] { return RoundTrip(link, 65536, 100); },
        [&] { return RoundTrip(bare, 65536, 100); }));
    PrintRow(Compare(
        {"throughput, 200 bytes", "MiB/s", 0, 0, 0, 0.8, true}, 41,
        [&] { return Throughput(link, small, 20000, 256); },
        [&] { return Throughput(bare, small, 20000, 256); }));
    PrintRow(Compare(
        {"throughput, 64 KiB", "MiB/s", 0, 0, 0, 0.8, true}, 41,
        [&] { return Throughput(link, large, 500, 16); }, [&] { return Throughput(bare, large, 500, 16); }));
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir folder;
    if (argc < 3)
        qputenv("TMPDIR", folder.path().toLocal8Bit());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (argc == 3)
        return Echo(QString::fromLocal8Bit(argv[2]));

    const QString name = QStringLiteral("link-bench");
    QProcess service;
    service.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    service.start(QCoreApplication::applicationFilePath(), {QStringLiteral("echo"), name});
    if (!service.waitForReadyRead()) {
        std::fprintf(stderr, "the echo service did not start\n");
        return 1;
    }
    PrintHeading();
    Measure(name);
    MeasureWindow(name);
    service.kill();
    service.waitForFinished();
    return 0;
}
