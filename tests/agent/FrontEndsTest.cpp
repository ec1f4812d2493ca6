// How the stand-in agent service looks after the front ends that it starts.
#include "LaunchedProgram.h"
#include "SessionFrontEnds.h"
#include "Supervisor.h"

#include <QDir>
#include <regex>
#include <sstream>

TEST(FrontEnds, AreStartedAgainAndWaitWhenTheyKeepEnding) {
    using std::chrono::milliseconds;
    RestartBackoff backoff;
    std::vector<milliseconds::rep> waits;
    for (const int lived : {2000, 0, 1999, 0, 0, 0, 0, 0, 0, 2000, 0})
        waits.push_back(backoff.Next(milliseconds(lived)).count() / 1000);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(backoff.Next(milliseconds(0), true), RestartBackoff::First) << "while a lock is in force";
    EXPECT_EQ(waits, (std::vector<milliseconds::rep>{0, 1, 2, 4, 8, 16, 32, 60, 60, 0, 1}));

    std::ostringstream lines;
    EventLog log(lines);
    const auto tells = [&lines](const char* line) {
        return QTest::qWaitFor([&] { return lines.str().find(line) != std::string::npos; });
    };
    {
        Supervisor missing(
            std::make_unique<LaunchedProgram>(QDir::temp().filePath(QStringLiteral("none")), QStringList()),
            "front end", log, [] { return false; });
        missing.Start();
        EXPECT_TRUE(tells("front end cannot be started: "));
    }
    std::istringstream startsAndEnds("0 5000 5000 6000");
    const auto now = [&] { return milliseconds(*std::istream_iterator<int>(startsAndEnds)); };
    lines.str({});
    Supervisor supervisor(
        std::make_unique<LaunchedProgram>(QCoreApplication::applicationFilePath(),
                                          QStringList(QStringLiteral("--gtest_filter=none"))),
        "front end", log, [] { return false; }, now);
    supervisor.Start();
    EXPECT_TRUE(tells("front end is started again in 1 s\n"));
    static const std::regex twoLives("(front end started as .*\nfront end ended with exit code 0\n){2}.*\n");
    EXPECT_TRUE(std::regex_match(lines.str(), twoLives)) << lines.str();
}

TEST(FrontEnds, RunInEachSessionAsLongAsItsUserIsThere) {
    struct Sessions : SystemService {
        struct Running : Program {
            quint32 Id() const override { return 7; }
        };
        std::unique_ptr<Listener> Listen(const QString&, const std::function<void(qintptr)>&,
                                         QString&) const override {
            return nullptr;
        }
        std::optional<std::vector<quint32>> UserSessions() const override { return sessions; }
        std::unique_ptr<Program> StartInSession(quint32 session, const QString&, const QStringList&,
                                                const std::function<void(quint32)>& ended,
                                                QString& problem) const override {
            end[session] = ended;
            problem = QStringLiteral("logged off");
            return session == 3 ? nullptr : std::make_unique<Running>();
        }
        std::optional<std::vector<quint32>> sessions{{1, 2}};
        mutable std::map<quint32, std::function<void(quint32)>> end;
    } system;
    std::ostringstream lines;
    EventLog log(lines);
    {
        SessionFrontEnds frontEnds(system, QStringLiteral("front-end"), {}, log, [] { return false; });
        frontEnds.Update();
        system.sessions = {{2, 3, 4}};
        frontEnds.Update();
        system.sessions.reset(); // not told: nobody's front end is ended for that
        frontEnds.Update();
        system.end[2](0xc0000005);
        EXPECT_EQ(lines.str(), "front end of session 1 started as process 7\n"
                               "front end of session 2 started as process 7\n"
                               "front end of session 1 was ended\n"
                               "front end of session 3 cannot be started: logged off\n"
                               "front end of session 3 is started again in 1 s\n"
                               "front end of session 4 started as process 7\n"
                               "front end of session 2 crashed or was killed, code 3221225477\n"
                               "front end of session 2 is started again in 1 s\n");
    }
    EXPECT_NE(lines.str().find("front end of session 4 was ended\n"), std::string::npos)
        << "with the service";
}
