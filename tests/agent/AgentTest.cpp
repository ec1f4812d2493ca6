// The stand-in agent service as its users meet it: commands in, lines out, frames on a real pipe.
#include "CommandInterpreter.h"
#include "entity/IotEntities.h"
#include "entity/SettingsEntities.h"
#include "entity/UpdateEntities.h"
#include "platform/link/RyxPackage.h"
#include "platform/security/PasswordHelper.h"
#include "platform/system/SystemPipe.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QtTest>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace {

/// A front end of which nothing but its end of the pipe exists.
class Client {
public:
    explicit Client(const QString& pipe, qint64 readBufferSize = 0) {
        m_socket.setReadBufferSize(readBufferSize);
        m_socket.connectToServer(pipe);
    }

    bool IsConnected() { return m_socket.state() == QLocalSocket::ConnectedState; }
    void Write(const std::string& bytes) { m_socket.write(bytes.data(), static_cast<qint64>(bytes.size())); }
    void Send(PipeKey key, const std::string& body = {}) { Write(RyxPackage::PackageData(key, body)); }

    /// The next message of the service; key -1 when none comes.
    FrameDecoder::Frame Receive() {
        FrameDecoder::Frame frame;
        const bool came = QTest::qWaitFor([&] {
            const QByteArray bytes = m_socket.readAll();
            m_decoder.Append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
            return m_decoder.Next(frame) == FrameDecoder::Result::Frame;
        });
        if (!came)
            frame.key = static_cast<PipeKey>(-1);
        return frame;
    }
    /// Takes the messages with which the service greets.
    void SkipGreeting() {
        for (int i = 0; i < 3; ++i)
            Receive();
    }

private:
    QLocalSocket m_socket;
    FrameDecoder m_decoder;
};

class AgentTest : public testing::Test {
protected:
    void SetUp() override {
        static int count = 0;
        pipe = QStringLiteral("ryx-agent-test-%1-%2").arg(QCoreApplication::applicationPid()).arg(++count);
        ASSERT_EQ(server.Listen(pipe), QString());
        lines.str({});
    }

    bool WaitForLine(const std::string& line) {
        return QTest::qWaitFor(
            [&] { return ('\n' + lines.str()).find('\n' + line + '\n') != std::string::npos; });
    }

    bool PlayScenario(const std::string& text) {
        std::istringstream file(text);
        if (!interpreter.AddScenario(file, "test"))
            return false;
        QSignalSpy idle(&interpreter, &CommandInterpreter::Idle);
        interpreter.Play();
        return !idle.isEmpty() || idle.wait();
    }

    QString pipe;
    std::ostringstream lines;
    EventLog log{lines};
    AgentServer server{log};
    AgentService service{server};
    CommandInterpreter interpreter{server, service, log};
};

TEST_F(AgentTest, GreetsWithPasswordsAndStatusAndAnswersTheFirstQuestions) {
    interpreter.Add("context school-7");
    interpreter.Add("status connecting");
    interpreter.Add("password 000111");
    Client client(pipe);

    FrameDecoder::Frame frame = client.Receive();
    EXPECT_EQ(frame.key, PipeKey::UnlockPasswordUpdate);
    EXPECT_EQ(frame.body, PasswordHelper::HashVelmoraPassword("000111"));
    frame = client.Receive();
    EXPECT_EQ(frame.key, PipeKey::UnbindPasswordUpdate);
    EXPECT_EQ(frame.body, PasswordHelper::HashVelmoraPassword("654321"));
    frame = client.Receive();
    EXPECT_EQ(frame.key, PipeKey::IotStatusNotify);
    IotStatusEntity status;
    status.ReadFromString(frame.body);
    EXPECT_EQ(status.status, 5);

    client.Send(PipeKey::ContextRequest);
    frame = client.Receive();
    EXPECT_EQ(frame.key, PipeKey::ContextReply);
    EXPECT_EQ(frame.body, "school-7");

    interpreter.Add("update 2.0");
    client.Receive();
    client.Send(PipeKey::OtaVersionInfo);
    frame = client.Receive();
    EXPECT_EQ(frame.key, PipeKey::OtaVersionInfo);
    OtaUpdateVersionInfo update;
    update.ReadFromString(frame.body);
    EXPECT_TRUE(update.hasUpdate);
    EXPECT_EQ(update.versionCode, "2.0");
}

TEST_F(AgentTest, EveryClientGetsWhatACommandSends) {
    Client first(pipe), second(pipe);
    ASSERT_TRUE(WaitForLine("client 2 connected"));
    first.SkipGreeting();
    second.SkipGreeting();

    const struct {
        const char* command;
        PipeKey key;
        std::string body;
    } cases[] = {
        {"lock", PipeKey::ScreenLock, DeviceScreenLock().WriteToString()},
        {"unlock", PipeKey::ScreenUnlock, ""},
        {"reset", PipeKey::ScreenLockReset, ""},
        {"unbind-password 222333", PipeKey::UnbindPasswordUpdate,
         PasswordHelper::HashVelmoraPassword("222333")},
        {"send 74 Room  4", PipeKey::DisconnectWifi, "Room  4"},
        {"  send PopupPolicy {\"a\": [1]}  ", PipeKey::PopupPolicy, "{\"a\": [1]}"},
        {"send -12345 x", static_cast<PipeKey>(-12345), "x"},
        {"raw 01 00 00 00 4b000000 ff", PipeKey::SwitchChannel, "\xff"},
    };
    for (const auto& [command, key, body] : cases) {
        SCOPED_TRACE(command);
        interpreter.Add(command);
        for (Client* client : {&first, &second}) {
            const FrameDecoder::Frame frame = client->Receive();
            EXPECT_EQ(frame.key, key);
            EXPECT_EQ(frame.body, body);
        }
    }

    interpreter.Add("lock 18:30");
    DeviceScreenLock lock;
    lock.ReadFromString(first.Receive().body);
    EXPECT_EQ(lock.endAt, "18:30");
}

TEST_F(AgentTest, LinesThatAreNotUnderstoodAreToldAndDoNothing) {
    Client client(pipe);
    ASSERT_TRUE(WaitForLine("client 1 connected"));
    client.SkipGreeting();

    for (const char* line :
         {"frobnicate", "lock 24:00",     "lock 9:30",        "lock 12:30 x",    "unlock now",
          "status up",  "status",         "password 12345",   "password 12345a", "unbind-password",
          "send",       "send Nothing x", "send 99999999999", "raw 0",           "raw zz",
          "raw",        "wait",           "wait 35 soon",     "wait 35 -1",      "wait 35 nan",
          "pause x",    "absent",         "bodies",           "quit now"}) {
        SCOPED_TRACE(line);
        lines.str({});
        interpreter.Add(line);
        EXPECT_EQ(lines.str().rfind("error: ", 0), 0u) << lines.str();
    }
    EXPECT_TRUE(interpreter.AllMet());

    interpreter.Add("# a remark");
    interpreter.Add("");
    interpreter.Add("say done");
    EXPECT_TRUE(WaitForLine("say done"));
    interpreter.Add("unlock");
    EXPECT_EQ(client.Receive().key, PipeKey::ScreenUnlock);
}

TEST_F(AgentTest, ScenarioWaitsForMessagesEachOfWhichCountsOnce) {
    Client client(pipe);
    ASSERT_TRUE(WaitForLine("client 1 connected"));
    client.Send(PipeKey::OtaVersionInfo);
    client.Send(PipeKey::Binding, "{\"code\": \"A7\"}");
    ASSERT_TRUE(WaitForLine("client 1 received 3 Binding 14 bytes"));

    // Both came before the waits, in the other order.
    EXPECT_TRUE(PlayScenario("wait-client 0\nwait Binding 0 \"A7\"\nwait 12 0\nabsent 35\n"));
    EXPECT_TRUE(interpreter.AllMet());

    // One that comes while the scenario waits.
    std::istringstream file("wait ScreenUnlock 30\nsay over\n");
    ASSERT_TRUE(interpreter.AddScenario(file, "test"));
    interpreter.Play();
    EXPECT_EQ(lines.str().find("say over"), std::string::npos);
    client.Send(PipeKey::ScreenUnlock);
    EXPECT_TRUE(WaitForLine("say over"));
    EXPECT_TRUE(interpreter.AllMet());
}

TEST_F(AgentTest, AnUnmetExpectationFailsTheScenarioAndDropsItsRest) {
    const char* const unmet[] = {"wait 12 0",           "wait ScreenUnlock 0", "wait Binding 0 B8",
                                 "absent ScreenUnlock", "wait-gone 0",         "wait 35 0.01"};
    for (const char* expectation : unmet) {
        SCOPED_TRACE(expectation);
        CommandInterpreter fresh(server, service, log);
        Client client(pipe);
        client.SkipGreeting();
        client.Send(PipeKey::Binding, "A7");
        if (std::string(expectation).find("absent") == 0)
            client.Send(PipeKey::ScreenUnlock);
        client.Send(PipeKey::ContextRequest);
        EXPECT_EQ(client.Receive().key, PipeKey::ContextReply);

        lines.str({});
        std::istringstream file(std::string("pause 0\n") + expectation + "\nsay behind\n");
        ASSERT_TRUE(fresh.AddScenario(file, "test"));
        QSignalSpy idle(&fresh, &CommandInterpreter::Idle);
        fresh.Play();
        EXPECT_TRUE(!idle.isEmpty() || idle.wait());
        EXPECT_FALSE(fresh.AllMet());
        EXPECT_NE(lines.str().find(std::string("failed: test:2: ") + expectation), std::string::npos);
        EXPECT_EQ(lines.str().find("say behind"), std::string::npos);
    }
}

TEST_F(AgentTest, AScenarioWithABadLineIsNotBegun) {
    EXPECT_FALSE(PlayScenario("say first\n\nlok\nsend\n"));
    interpreter.Play();
    EXPECT_NE(lines.str().find("error: test:3: \"lok\" is no command"), std::string::npos);
    EXPECT_NE(lines.str().find("error: test:4: send wants a key"), std::string::npos);
    EXPECT_EQ(lines.str().find("say first"), std::string::npos);
    EXPECT_TRUE(PlayScenario("# nothing to do\n"));
}

TEST_F(AgentTest, TheScenariosThatComeWithItAreUnderstood) {
    const QDir folder(QStringLiteral(RYX_SCENARIOS));
    const QStringList names = folder.entryList({QStringLiteral("*.scenario")});
    EXPECT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        std::ifstream file(folder.filePath(name).toStdString());
        ASSERT_TRUE(file);
        EXPECT_TRUE(interpreter.AddScenario(file, name.toStdString())) << lines.str();
    }
}

TEST_F(AgentTest, AConsoleGoesOnAfterAFailureButNotAfterQuit) {
    QSignalSpy quit(&interpreter, &CommandInterpreter::Quit);
    for (const char* line : {"wait 35 0", "say on", "quit", "say behind"})
        interpreter.Add(line);
    EXPECT_NE(lines.str().find("say on\n"), std::string::npos);
    EXPECT_EQ(lines.str().find("say behind"), std::string::npos);
    EXPECT_EQ(quit.size(), 1);
    EXPECT_FALSE(interpreter.AllMet());
}

TEST_F(AgentTest, ABadFrameEndsThatConnectionOnly) {
    Client good(pipe), bad(pipe);
    ASSERT_TRUE(WaitForLine("client 2 connected"));
    bad.Send(PipeKey::ContextRequest);
    bad.Write(std::string("\xff\xff\xff\xff\x01\0\0\0", 8));
    EXPECT_TRUE(WaitForLine("client 2 received 0 ContextRequest 0 bytes"));
    EXPECT_TRUE(WaitForLine("client 2 sent a frame of 4294967295 bytes, more than is allowed"));
    EXPECT_TRUE(WaitForLine("client 2 disconnected"));

    // In pieces, and ended inside a frame.
    for (const char byte : RyxPackage::PackageData(PipeKey::ScreenUnlock, "ab"))
        good.Write(std::string(1, byte));
    EXPECT_TRUE(WaitForLine("client 1 received 35 ScreenUnlock 2 bytes"));
    EXPECT_EQ(server.Clients(), std::vector<int>{1});
}

TEST_F(AgentTest, AClientThatDoesNotReadIsDropped) {
    Client deaf(pipe, 1), good(pipe);
    ASSERT_TRUE(WaitForLine("client 2 connected"));
    good.SkipGreeting();
    const std::string body(RyxPackage::MaxBodySize, 'x');
    for (int i = 0; i < 6; ++i)
        server.SendTo(1, PipeKey::MessageFile, body);
    EXPECT_TRUE(WaitForLine("client 1 does not read what is sent"));
    EXPECT_TRUE(WaitForLine("client 1 disconnected"));
    server.Send(PipeKey::MessageFile, std::string(RyxPackage::MaxBodySize + 1, 'x'));
    EXPECT_TRUE(WaitForLine("not sent 44 MessageFile 16777217 bytes, more than is allowed"));
    interpreter.Add("unlock");
    EXPECT_EQ(good.Receive().key, PipeKey::ScreenUnlock);
}

TEST_F(AgentTest, BodiesAreShownOnOneLineWhenAskedFor) {
    Client client(pipe);
    ASSERT_TRUE(WaitForLine("client 1 connected"));
    interpreter.Add("bodies on");
    client.Send(PipeKey::PopupDetected, "{\n\t\"a\" : \"b\x1b\"\n}\n");
    EXPECT_TRUE(WaitForLine("client 1 received 51 PopupDetected 16 bytes: { \"a\" : \"b.\" } "));
    interpreter.Add("bodies off");
    client.Send(PipeKey::PopupDetected, "{}");
    EXPECT_TRUE(WaitForLine("client 1 received 51 PopupDetected 2 bytes"));
}

TEST_F(AgentTest, ReplacesADeadServiceButNotALivingOne) {
    AgentServer second(log);
    EXPECT_EQ(second.Listen(pipe), QStringLiteral("another process serves it"));
    Client client(pipe);
    EXPECT_TRUE(QTest::qWaitFor([&] { return client.IsConnected(); }));

    // A killed service leaves its socket file, as one that is renamed away from its server does.
    const QString stale = pipe + QStringLiteral("-stale");
    QDir folder = QDir::temp();
    QLocalServer dead;
    ASSERT_TRUE(dead.listen(pipe + QStringLiteral("-dead")));
    if (!folder.rename(pipe + QStringLiteral("-dead"), stale))
        GTEST_SKIP() << "pipes are no files here";
    dead.close();
    EXPECT_EQ(second.Listen(stale), QString());
    Client other(stale);
    EXPECT_TRUE(WaitForLine("client 1 connected"));
}

} // namespace
