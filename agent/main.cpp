// ryx-agent: stands in for the agent service, as a service of the system or for people who try the front end.
#include "AgentEnrolment.h"
#include "AgentOptions.h"
#include "CommandInterpreter.h"
#include "ConsoleInput.h"
#include "LaunchedProgram.h"
#include "SessionFrontEnds.h"
#include "Supervisor.h"
#include "WebService.h"
#include "platform/system/SystemService.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimer>
#include <atomic>
#include <csignal>
#include <fstream>
#include <iostream>
#include <optional>

namespace {

enum ExitCode { AllMet = 0, NotMet = 1, BadUsage = 2, NotServing = 3 };

constexpr int SignalPollMs = 100;
std::atomic<int> endingSignal{0};

/// Leaves the event loop at a signal to end, so that what the agent service has started ends with it.
void QuitAtSignals(QTimer& poll) {
    for (const int signal : {SIGINT, SIGTERM})
        std::signal(signal, [](int number) { endingSignal = number; });
    QObject::connect(&poll, &QTimer::timeout, [] {
        if (endingSignal)
            QCoreApplication::quit();
    });
    poll.start(SignalPollMs);
}

/// `act`, to be called on any thread.
std::function<void()> OnMainThread(const std::function<void()>& act) {
    return [act] { QMetaObject::invokeMethod(qApp, act, Qt::QueuedConnection); };
}

QString FrontEndBesideThis() {
    const QFileInfo own(QCoreApplication::applicationFilePath());
    return own.dir().filePath(
        own.fileName().replace(QLatin1String("ryx-agent"), QLatin1String("velmora-ryx")));
}

int Run(const AgentOptions& options) {
    EventLog output(std::cout);
    const SystemService& system = SystemService::Native();
    std::function<void()> updateSessions; // of the front ends, once there are some
    if (options.isService) { // before anything can fail: the system waits for this service to tell it so
        const QString problem =
            system.BeginService({OnMainThread(&QCoreApplication::quit), OnMainThread([&updateSessions] {
                                     if (updateSessions)
                                         updateSessions();
                                 })});
        if (!problem.isEmpty()) {
            output.Line("error: this cannot run as a service: " + problem.toStdString());
            return NotServing;
        }
    }
    if (!options.problem.isEmpty()) {
        output.Line("error: " + options.problem.toStdString() + " (--help tells the options)");
        return BadUsage;
    }
    if (!options.help.isEmpty()) {
        output.Line(options.help.toStdString());
        return AllMet;
    }
    std::ofstream lines;
    if (options.logFile) {
        lines.open(QFile::encodeName(*options.logFile).toStdString());
        if (!lines) {
            output.Line("error: cannot write " + options.logFile->toStdString());
            return BadUsage;
        }
    }
    EventLog log(options.logFile ? static_cast<std::ostream&>(lines) : std::cout);

    AgentServer server(log);
    AgentService service(server);
    std::optional<WebService> webService;
    if (options.webPort) {
        bool isNumber = false;
        const int port = options.webPort->toUShort(&isNumber);
        webService.emplace(log, options.webFolder);
        const QString problem = isNumber ? webService->Listen(port) : QStringLiteral("PORT is no number");
        if (!problem.isEmpty()) {
            log.Line("error: cannot serve the web service: " + problem.toStdString());
            return isNumber ? NotServing : BadUsage;
        }
    }
    AgentEnrolment enrolment(server, service, log);
    CommandInterpreter interpreter(server, service, enrolment, log, webService ? &*webService : nullptr);

    if (options.scenario) {
        std::ifstream file(QFile::encodeName(*options.scenario).toStdString());
        if (!file) {
            log.Line("error: cannot read " + options.scenario->toStdString());
            return BadUsage;
        }
        if (!interpreter.AddScenario(file, *options.scenario))
            return BadUsage;
    }
    if (const QString problem = server.Listen(options.pipe); !problem.isEmpty()) {
        log.Line("error: cannot serve " + options.pipe.toStdString() + ": " + problem.toStdString());
        return NotServing;
    }

    const auto result = [&interpreter] { return interpreter.AllMet() ? AllMet : NotMet; };
    const auto quit = [&] { QCoreApplication::exit(result()); };
    QObject::connect(&interpreter, &CommandInterpreter::Quit, quit);

    ConsoleInput input;
    QObject::connect(&input, &ConsoleInput::LineRead, &interpreter, &CommandInterpreter::Add);
    // A command like the others, so that what was given before is carried out first.
    QObject::connect(&input, &ConsoleInput::Ended, &interpreter, [&] { interpreter.Add("quit"); });
    const auto openConsole = [&] {
        log.Line("commands are read from standard input; help lists them");
        input.Start();
    };

    if (options.scenario) {
        const auto afterScenario = std::make_shared<QMetaObject::Connection>();
        *afterScenario = QObject::connect(&interpreter, &CommandInterpreter::Idle, [&, afterScenario] {
            QObject::disconnect(*afterScenario);
            log.Line(interpreter.AllMet() ? "scenario passed" : "scenario failed");
            if (options.takesConsole)
                openConsole();
            else if (!options.isService)
                quit();
        });
        QMetaObject::invokeMethod(&interpreter, &CommandInterpreter::Play, Qt::QueuedConnection);
    } else if (!options.isService) {
        openConsole();
    }

    std::optional<Supervisor> supervisor;
    std::optional<SessionFrontEnds> frontEnds;
    QTimer signalPoll;
    const auto isUrgent = [&service] { return service.HoldsLock(); };
    if (options.isService) {
        frontEnds.emplace(system, options.program.value_or(FrontEndBesideThis()),
                          options.arguments.isEmpty() ? QStringList(QStringLiteral("-hide"))
                                                      : options.arguments,
                          log, isUrgent);
        updateSessions = [&frontEnds] { frontEnds->Update(); };
        system.TellRunning(); // first: from now on the system tells of a log-on
        updateSessions();
    } else if (options.program) {
        QuitAtSignals(signalPoll);
        supervisor.emplace(std::make_unique<LaunchedProgram>(*options.program, options.arguments),
                           "front end", log, isUrgent);
        supervisor->Start();
    }
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    // The reading thread may still wait for a line when the program ends; without this, it would hold the
    // lock of the C library's standard input then.
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr); // reading runs on a thread of its own and must not flush what this one writes
    const QCoreApplication application(argc, argv);
    const int result = Run(AgentOptions::Of(QCoreApplication::arguments()));
    SystemService::Native().EndService(result);
    if (endingSignal) { // for whoever started the agent service, it ends by this signal
        std::signal(endingSignal, SIG_DFL);
        std::raise(endingSignal);
    }
    return result;
}
