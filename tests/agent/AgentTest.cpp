// The stand-in agent service as its users meet it: commands in, lines out, frames on a real pipe.
#include "AgentEnrolment.h"
#include "CommandInterpreter.h"
#include "WebService.h"
#include "platform/context/AppConfigData.h"
#include "platform/link/RyxPackage.h"
#include "platform/security/PasswordHelper.h"

#include <QDirIterator>
#include <QLocalServer>
#include <QLocalSocket>
#include <fstream>
#include <sstream>

namespace {

/// A front end of which nothing but its end of the pipe exists.
struct Client : QLocalSocket {
    explicit Client(const QString& pipe, qint64 readLimit = 0) {
        setReadBufferSize(readLimit);
        connectToServer(pipe);
    }
    void Send(int key, const std::string& body = {}) {
        write(QByteArray::fromStdString(RyxPackage::PackageData(static_cast<PipeKey>(key), body)));
    }
    /// Whether the next message has this key, and this in its body.
    bool Receives(int key, const std::string& part) {
        FrameDecoder::Frame frame{};
        return QTest::qWaitFor([&] {
                   const std::string bytes = readAll().toStdString();
                   decoder.Append(bytes.data(), bytes.size());
                   return decoder.Next(frame) == FrameDecoder::Result::Frame;
               }) &&
               frame.key == static_cast<PipeKey>(key) && frame.body.find(part) != std::string::npos;
    }
    FrameDecoder decoder;
};

struct ManualClock : Clock {
    QDateTime Now() const override { return now; }
    QDateTime now{{2024, 5, 6}, {18, 0}};
};

struct Agent : testing::Test {
    void SetUp() override { ASSERT_EQ(server.Listen(pipe), QString()); }

    std::string Path(const char* name) const { return folder.filePath(QLatin1String(name)).toStdString(); }
    bool Told(const std::string& line) const { return lines.str().find(line) != std::string::npos; }
    bool Tells(const std::string& line) {
        return QTest::qWaitFor([&] { return Told(line); });
    }
    bool Play(const std::string& scenario) {
        std::istringstream file(scenario);
        QSignalSpy idle(&interpreter, &CommandInterpreter::Idle);
        if (!interpreter.AddScenario(file, folder.filePath(QStringLiteral("test"))))
            return false;
        interpreter.Play();
        return !idle.isEmpty() || idle.wait();
    }

    const QTemporaryDir folder;
    const QString pipe = QStringLiteral("ryx-agent-test-") + QFileInfo(folder.path()).fileName();
    std::ostringstream lines;
    EventLog log{lines};
    AgentServer server{log};
    ManualClock clock;
    AgentService service{server, clock};
    AgentEnrolment enrolment{server, service, log};
    WebService web{log, QDir::tempPath()};
    CommandInterpreter interpreter{server, service, enrolment, log, &web};
};

TEST_F(Agent, SendsToEveryClientAndAnswersTheOneThatAsks) {
    const auto hash = [](const char* digits) { return PasswordHelper::HashVelmoraPassword(digits); };
    std::ofstream(Path("body"), std::ios::binary) << "{\n \"a\": 1 }\n";
    ASSERT_TRUE(Play("status connecting\npassword 000111\n"));
    Client first(pipe), second(pipe);
    const struct {
        const char* command;
        int key;
        std::string part;
        std::optional<int> question = {}; // asked by the second client alone
    } cases[] = {
        {"", 10, hash("000111")},
        {"", 11, hash("654321")},
        {"", 2, "\"status\" : 5"},
        {"lock", 33, "\"endAt\" : \"\""},
        {"lock 18:30", 33, "\"endAt\" : \"18:30\""},
        {"unlock", 35, ""},
        {"reset", 34, ""},
        {"settings-lock", 78, ""},
        {"settings-unlock", 80, ""},
        {"control-panel", 81, ""},
        {"unbind-password 222333", 11, hash("222333")},
        {"  send PopupPolicy {\"a\":  [1]}  ", 50, "{\"a\":  [1]}"},
        {"send -12345 @@x", -12345, "@x"},
        {"send 74 @body", 74, "{\n \"a\": 1 }\n"},
        {"raw 01 00 00 00 4b000000 ff", 75, "\xff"},
        {"", 12, "\"hasUpdate\" : false", 12},
        {"update 2.0", 12, "\"2.0\""},
        {"", 12, "\"2.0\"", 12},
        {"update 2.1 silent 3", 12, "\"fileSize\" : 3145728"},
        {"download failed", 14, "\"success\" : false"},
        {"context school-7", 1, "school-7", 0},
        {"on 0 send PopupPolicy @body", 50, "{\n \"a\": 1 }\n", 0},
        {"on Binding send 35", 35, "", 3},
        {"on 3 send 4 b c", 4, "b c", 3},
        {"send 36 last", 36, "last"}, // and the first has got nothing that it did not ask for
    };
    for (const auto& [command, key, part, question] : cases) {
        EXPECT_TRUE(Play(command)) << lines.str();
        if (question)
            second.Send(*question, "anything");
        EXPECT_TRUE(second.Receives(key, part)) << command << part;
        EXPECT_TRUE(question || first.Receives(key, part)) << command << part;
    }
}

TEST_F(Agent, KeepsTheRulesForPopUpsAndObeysItsUser) {
    Client first(pipe);
    ASSERT_TRUE(first.Receives(10, "") && first.Receives(11, "") && first.Receives(2, ""));
    std::ofstream(Path("rules")) << R"({"popupsDetails": [{"appName": "a.exe", "popName": "Won"}]})";
    const struct {
        const char* command;
        int question;
        const char* body;
        int key;
        const char* part;
    } cases[] = {
        {"popup-rules rules", 0, "", 50, "Won"},
        {"popup-rule add b.exe | Shop | C | P", 0, "", 50, "\"hasOne\" : true"},
        {"popups on", 0, "", 50, "\"popProductName\" : \"P\""},
        {"", 48, R"({"hasOne": true, "popupsDetails": [{"appName": "A.EXE", "popName": "won"}]})", 50,
         "A.EXE"},
        {"", 48, R"({"popStatus": false})", 50, "\"popStatus\" : false"},
        {"", 49, "{}", 49, "\"code\" : \"0\""},
        {"popup-reports failure", 49, "{}", 49, "\"code\" : \"1\""},
    };
    for (const auto& [command, question, body, key, part] : cases) {
        EXPECT_TRUE(Play(command)) << lines.str();
        if (question)
            first.Send(question, body);
        EXPECT_TRUE(first.Receives(key, part)) << command << part;
    }
    ASSERT_TRUE(Play("popup-reports none"));
    first.Send(49, "{}");
    first.Send(51, R"({"appName": "b.exe", "popName": "Won\nit"})");
    EXPECT_TRUE(Tells("pop-up closed: b.exe \"Won it\""));
    ASSERT_TRUE(Play("popups on"));
    EXPECT_TRUE(first.Receives(50, "b.exe")) << "and no answer came before it";
}

TEST_F(Agent, SendsTheLockThatIsInForceToWhoeverConnects) {
    const QDate day = clock.now.date(), next = day.addDays(1);
    std::optional<Client> client;
    const auto greets = [&](bool locked) {
        client.emplace(pipe);
        client->Send(0); // its answer is the greeting's end
        return client->Receives(10, "") && client->Receives(11, "") && client->Receives(2, "") &&
               (!locked || client->Receives(33, "")) && client->Receives(1, "");
    };
    for (const auto& [command, connected, locked] : std::vector<std::tuple<const char*, QDateTime, bool>>{
             {"lock", {next, {3, 0}}, true},
             {"lock 00:30", {day, {18, 1}}, true}, // has passed already, so the earlier lock stays
             {"unlock", {day, {18, 2}}, false},
             {"lock 18:30", {day, {18, 29, 59}}, true},
             {"pause 0", {day, {18, 30}}, false},
             {"pause 0", {next, {9, 0}}, false},
             {"lock 18:31", {next, {18, 30}}, true},
             {"reset", {next, {18, 30}}, false},
             {"lock", {next, {18, 31}}, true}}) {
        EXPECT_TRUE(Play(command));
        clock.now = connected;
        EXPECT_TRUE(greets(locked)) << command << lines.str();
    }
    client->Send(35);
    EXPECT_TRUE(Tells("received 35") && greets(false));
}

TEST_F(Agent, EnrolsTellsWhomTheDeviceBelongsToAndKnowsItAfterAStart) {
    const QString path = qEnvironmentVariable("VELMORA_RYX_CONFIG");
    std::ofstream(path.toStdString()) << R"({"theme": "dark", "deviceName": "old"})";
    const auto request = [](bool binding, const char* code, const char* account) {
        return std::string("{\"binding\": ") + (binding ? "true" : "false") + ", \"code\": \"" + code +
               "\", \"email\": \"" + account + "\", \"deviceName\": \"Hall\", \"tags\": [\"x\", \"y\"]}";
    };
    const auto kept = [&] {
        AppConfigData data;
        data.Load(path.toStdString());
        EXPECT_EQ(data.theme, "dark");
        return std::to_string(data.enrolled) + data.schoolCode + data.adminAccount + data.deviceName +
               (data.deviceTags.empty() ? "" : data.deviceTags.back());
    };
    Client client(pipe);
    EXPECT_TRUE(client.Receives(10, "") && client.Receives(11, "") && client.Receives(2, "0"));
    const struct {
        const char* command;
        std::string request;
        const char* result; ///< what it contains
        int status;         ///< that follows; -1: none does
        const char* kept;
    } cases[] = {
        {"", request(true, "zzz", "admin@lakeside.example"), "r_802001", -1, "0old"},
        {"", request(true, "a1b2c3", "a@b.c"), "r_802002", -1, "0old"},
        {"binding fail 170002", request(true, "a1b2c3", "admin@lakeside.example"), "170002", -1, "0old"},
        {"binding normal\naccept zzz a@b.c screen", request(true, "zzz", "a@b.c"), "screen", 2,
         "1zzza@b.cHally"},
        {"", request(false, "", ""), "r_802003", -1, "1zzza@b.cHally"},
        {"binding-delay 0.01", request(false, "zzz", "a@b.c"), "\"result\" : true", 0, "0"},
        {"", "{\"code\": []}", "r_802003", -1, "0"},
    };
    for (const auto& row : cases) {
        ASSERT_TRUE(Play(row.command));
        client.Send(3, row.request);
        EXPECT_TRUE(client.Receives(3, row.result)) << row.request;
        EXPECT_TRUE(row.status < 0 || client.Receives(2, std::to_string(row.status)));
        EXPECT_EQ(kept(), row.kept) << row.request;
    }
    ASSERT_TRUE(Play(
        "auto-enrol c d@e.f Room\ndevice-name Hall 2\ndevice-tags a b, c\naccount g@h.i\nbinding silent"));
    EXPECT_EQ(kept(), "1cg@h.iHall 2c");
    for (const auto& [key, part] : {std::pair{9, "d@e.f"}, {2, "2"}, {5, "Hall 2"}, {6, "a b"}, {7, "g@h.i"}})
        EXPECT_TRUE(client.Receives(key, part)) << key;
    client.Send(3, request(false, "c", "g@h.i"));
    ASSERT_TRUE(Tells("received 3 Binding"));
    AgentServer secondServer(log);
    AgentService secondService(secondServer, clock);
    const AgentEnrolment second(secondServer, secondService, log);
    ASSERT_EQ(secondServer.Listen(pipe + QStringLiteral("-2")), QString());
    Client later(pipe + QStringLiteral("-2"));
    for (const auto& [key, part] :
         {std::pair{10, ""}, {11, ""}, {2, "2"}, {5, "Hall 2"}, {6, "a b"}, {7, "g@h.i"}})
        EXPECT_TRUE(later.Receives(key, part)) << key;
    ASSERT_TRUE(Play("unenrol"));
    EXPECT_TRUE(client.Receives(4, "true") && client.Receives(2, "0")) << "and no answer before";
    EXPECT_EQ(kept(), "0");
}

TEST_F(Agent, TellsLinesThatItDoesNotUnderstandAndDoesNothing) {
    QFile(folder.filePath(QStringLiteral("large"))).resize(RyxPackage::MaxBodySize + 1);
    std::istringstream bad(
        "frobnicate|lock 24:00|lock 9:30|lock 12:30 x|unlock now|status|status up|bodies|"
        "password 12345|password 12345a|unbind-password|raw|raw 0|raw zz|pause x|absent|"
        "send|send Nothing x|send 99999999999|send 74 @|send 74 @none|send 74 @large|"
        "on|on 3|on 3 lock|on 3 send|on x send 4|on 3 send 4 @none|quit now|"
        "accept a1b2c3|binding|binding fail|binding silent x|binding-delay soon|unenrol now|"
        "wait|wait 35 soon|wait 35 -1|wait 35 nan");
    for (std::string line; std::getline(bad, line, '|'); lines.str({})) {
        interpreter.Add(line);
        EXPECT_TRUE(Told("error: ")) << line;
        EXPECT_FALSE(Play("say first\n\n" + line));
        EXPECT_TRUE(Told("error: " + Path("test:3: "))) << line;
        EXPECT_FALSE(Told("say first"));
    }
    EXPECT_TRUE(interpreter.AllMet());

    // A console goes on, also after a failure, but not after its end.
    QSignalSpy quit(&interpreter, &CommandInterpreter::Quit);
    for (const char* line : {"wait 35 0", "say on", "quit", "say behind"})
        interpreter.Add(line);
    EXPECT_EQ(lines.str(), "failed: wait 35 0\nsay on\n");
    EXPECT_EQ(quit.size(), 1);
    EXPECT_FALSE(interpreter.AllMet());
}

TEST_F(Agent, WaitsForMessagesEachOfWhichCountsOnce) {
    Client client(pipe);
    for (const int key : {12, 3, 51, 35})
        client.Send(key, key == 3 ? "{\"code\": \"A7\"}" : "");
    ASSERT_TRUE(Tells("client 1 received 35 ScreenUnlock 0 bytes"));
    EXPECT_TRUE(Play("wait-client 0\nwait 3 0 \"A7\"\nwait 12 0\nabsent 12\nwait 35 0\nsay now\n"));
    interpreter.Add("wait 35 30");
    interpreter.Add("say over");
    EXPECT_TRUE(Told("say now\n") && !Told("say over"));
    client.Send(35);
    EXPECT_TRUE(Tells("say over") && interpreter.AllMet());

    client.Send(3, "A7");
    ASSERT_TRUE(Tells("client 1 received 3 Binding 2 bytes"));
    for (const char* unmet : {"wait 12 0", "wait Binding 0 B8", "absent 51", "wait-gone 0", "wait 35 0.01"}) {
        EXPECT_TRUE(Play(std::string("pause 0\n") + unmet + "\nsay behind\n"));
        EXPECT_TRUE(Told("failed: " + Path("test:2: ") + unmet)) << unmet;
    }
    EXPECT_FALSE(Told("say behind"));
    EXPECT_FALSE(interpreter.AllMet());
}

TEST_F(Agent, UnderstandsTheScenariosThatComeWithIt) {
    QDirIterator scenarios(QStringLiteral(RYX_SCENARIOS), {QStringLiteral("*.scenario")});
    EXPECT_TRUE(scenarios.hasNext());
    while (scenarios.hasNext()) {
        std::ifstream file(scenarios.next().toStdString());
        EXPECT_TRUE(file && interpreter.AddScenario(file, scenarios.filePath())) << lines.str();
    }
}

TEST_F(Agent, EndsTheConnectionsThatMisbehaveAndNoOther) {
    Client good(pipe), bad(pipe), deaf(pipe, 1);
    ASSERT_TRUE(Tells("client 3 connected"));
    bad.Send(0);
    bad.write(QByteArray::fromHex("ffffffff01000000"));
    for (int i = 0; i < 6; ++i)
        server.SendTo(3, PipeKey::MessageFile, std::string(RyxPackage::MaxBodySize, 'x'));
    server.Send(PipeKey::MessageFile, std::string(RyxPackage::MaxBodySize + 1, 'x'));
    interpreter.Add("bodies on");
    for (const char byte : RyxPackage::PackageData(PipeKey::PopupDetected, "{\n\t\"a\" : \"b\x1b\"\n}\n"))
        good.write(&byte, 1);
    for (const char* line : {"client 2 received 0 ContextRequest 0 bytes", "client 2 disconnected",
                             "client 2 sent a frame of 4294967295 bytes, more than is allowed",
                             "client 3 does not read what is sent", "client 3 disconnected",
                             "not sent 44 MessageFile 16777217 bytes, more than is allowed",
                             "client 1 received 51 PopupDetected 16 bytes: { \"a\" : \"b.\" } "})
        EXPECT_TRUE(Tells(line)) << line;
    interpreter.Add("bodies off");
    good.Send(51, "{}");
    EXPECT_TRUE(Tells("client 1 received 51 PopupDetected 2 bytes\n"));
    EXPECT_EQ(server.Clients(), std::vector<int>{1});
}

TEST_F(Agent, ReplacesADeadServiceButNotALivingOne) {
    AgentServer second(log);
    const QString stale = pipe + QStringLiteral("-stale");
    QLocalServer dead;
    ASSERT_TRUE(dead.listen(pipe + QStringLiteral("-dead")));
    // A killed service leaves its socket file, as one that is renamed away from its server does.
    if (!QDir::temp().rename(pipe + QStringLiteral("-dead"), stale))
        GTEST_SKIP() << "pipes are no files here, and Wine lets two programs serve one";
    EXPECT_EQ(second.Listen(pipe), QStringLiteral("another process serves it"));
    dead.close();
    EXPECT_EQ(second.Listen(stale), QString());
    const Client client(stale);
    EXPECT_TRUE(Tells("client 1 connected"));
}

} // namespace
