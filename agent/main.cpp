// ryx-agent: stands in for the agent service, as a service of the system or for people who try the front end.
#include "AgentEnrolment.h"
#include "CommandInterpreter.h"
#include "ConsoleInput.h"
#include "LaunchedProgram.h"
#include "SessionFrontEnds.h"
#include "Supervisor.h"
#include "WebService.h"
#include "platform/ProductConstants.h"
#include "platform/system/SystemService.h"

#include <QCommandLineParser>
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

int Run(QCoreApplication& application) {
    QCommandLineParser options;
    const QCommandLineOption pipe(QStringLiteral("pipe"), QStringLiteral("Serve the pipe NAME."),
                                  QStringLiteral("NAME"), QString::fromLatin1(Product::ServicePipe));
    const QCommandLineOption scenario(QStringLiteral("scenario"),
                                      QStringLiteral("Play the commands in FILE; then end, with 0 when every "
                                                     "expectation was met and 1 when one was not."),
                                      QStringLiteral("FILE"));
    const QCommandLineOption console(QStringLiteral("console"),
                                     QStringLiteral("Take commands from standard input after the scenario."));
    const QCommandLineOption launch(
        QStringLiteral("launch"),
        QStringLiteral("Start the front end PROGRAM with the arguments behind \"--\", and "
                       "again whenever it ends; end it at the end."),
        QStringLiteral("PROGRAM"));
    const QCommandLineOption asService(
        QStringLiteral("service"),
        QStringLiteral(
            "Run as a service of the system: without a console, and on Windows with the front end of "
            "--launch, or the one beside this program, in each user's session."));
    const QCommandLineOption logFile(QStringLiteral("log"),
                                     QStringLiteral("Write into FILE, anew, and not to standard output."),
                                     QStringLiteral("FILE"));
    const QCommandLineOption web(
        QStringLiteral("web"),
        QStringLiteral(
            "Serve the organisation's web service, too, at PORT of the own machine; 0 takes a free one."),
        QStringLiteral("PORT"));
    const QCommandLineOption webFolder(
        QStringLiteral("web-folder"), QStringLiteral("Keep the files that are uploaded in FOLDER."),
        QStringLiteral("FOLDER"), QDir::temp().filePath(QStringLiteral("ryx-agent-web")));
    options.setApplicationDescription(QStringLiteral(
        "Stand-in for the agent service. Without a scenario it takes commands from standard input."));
    const QCommandLineOption help = options.addHelpOption();
    options.addOptions({pipe, scenario, console, launch, asService, logFile, web, webFolder});
    options.addPositionalArgument(QStringLiteral("ARGUMENT"), QStringLiteral("Passed to PROGRAM."),
                                  QStringLiteral("[-- ARGUMENT...]"));
    EventLog output(std::cout);
    if (!options.parse(application.arguments()) ||
        (!options.positionalArguments().isEmpty() && !options.isSet(launch)) ||
        (options.isSet(console) && options.isSet(asService))) {
        const QString reason =
            options.errorText().isEmpty()
                ? QStringLiteral("arguments are for --launch alone, and a service has no console")
                : options.errorText();
        output.Line("error: " + reason.toStdString() + " (--help tells the options)");
        return BadUsage;
    }
    if (options.isSet(help)) {
        output.Line(options.helpText().toStdString());
        return AllMet;
    }
    std::ofstream lines;
    if (options.isSet(logFile)) {
        lines.open(QFile::encodeName(options.value(logFile)).toStdString());
        if (!lines) {
            output.Line("error: cannot write " + options.value(logFile).toStdString());
            return BadUsage;
        }
    }
    EventLog log(options.isSet(logFile) ? static_cast<std::ostream&>(lines) : std::cout);

    AgentServer server(log);
    AgentService service(server);
    std::optional<WebService> webService;
    if (options.isSet(web)) {
        bool isNumber = false;
        const int port = options.value(web).toUShort(&isNumber);
        webService.emplace(log, options.value(webFolder));
        const QString problem = isNumber ? webService->Listen(port) : QStringLiteral("PORT is no number");
        if (!problem.isEmpty()) {
            log.Line("error: cannot serve the web service: " + problem.toStdString());
            return isNumber ? NotServing : BadUsage;
        }
    }
    AgentEnrolment enrolment(server, service, log);
    CommandInterpreter interpreter(server, service, enrolment, log, webService ? &*webService : nullptr);

    const bool hasScenario = options.isSet(scenario);
    if (hasScenario) {
        const QString path = options.value(scenario);
        std::ifstream file(QFile::encodeName(path).toStdString());
        if (!file) {
            log.Line("error: cannot read " + path.toStdString());
            return BadUsage;
        }
        if (!interpreter.AddScenario(file, path))
            return BadUsage;
    }
    const SystemService& system = SystemService::Native();
    const bool isService = options.isSet(asService);
    std::optional<SessionFrontEnds> frontEnds;
    if (isService) {
        const QString problem = system.BeginService({OnMainThread(&QCoreApplication::quit), OnMainThread([&] {
                                                         if (frontEnds)
                                                             frontEnds->Update();
                                                     })});
        if (!problem.isEmpty()) {
            log.Line("error: this cannot run as a service: " + problem.toStdString());
            return NotServing;
        }
    }
    if (const QString problem = server.Listen(options.value(pipe)); !problem.isEmpty()) {
        log.Line("error: cannot serve " + options.value(pipe).toStdString() + ": " + problem.toStdString());
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

    if (hasScenario) {
        const auto afterScenario = std::make_shared<QMetaObject::Connection>();
        *afterScenario = QObject::connect(&interpreter, &CommandInterpreter::Idle, [&, afterScenario] {
            QObject::disconnect(*afterScenario);
            log.Line(interpreter.AllMet() ? "scenario passed" : "scenario failed");
            if (options.isSet(console))
                openConsole();
            else if (!isService)
                quit();
        });
        QMetaObject::invokeMethod(&interpreter, &CommandInterpreter::Play, Qt::QueuedConnection);
    } else if (!isService) {
        openConsole();
    }

    std::optional<Supervisor> supervisor;
    QTimer signalPoll;
    const auto isUrgent = [&service] { return service.HoldsLock(); };
    if (isService) {
        const QString program = options.isSet(launch) ? options.value(launch) : FrontEndBesideThis();
        const QStringList arguments = options.positionalArguments();
        frontEnds.emplace(system, program,
                          arguments.isEmpty() ? QStringList(QStringLiteral("-hide")) : arguments, log,
                          isUrgent);
        system.TellRunning(); // first: from now on the system tells of a log-on
        frontEnds->Update();
    } else if (options.isSet(launch)) {
        QuitAtSignals(signalPoll);
        supervisor.emplace(
            std::make_unique<LaunchedProgram>(options.value(launch), options.positionalArguments()),
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
    QCoreApplication application(argc, argv);
    const int result = Run(application);
    SystemService::Native().EndService(result);
    if (endingSignal) { // for whoever started the agent service, it ends by this signal
        std::signal(endingSignal, SIG_DFL);
        std::raise(endingSignal);
    }
    return result;
}
