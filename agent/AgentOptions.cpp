#include "AgentOptions.h"

#include "platform/ProductConstants.h"

#include <QCommandLineParser>
#include <QDir>

AgentOptions AgentOptions::Of(const QStringList& commandLine) {
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
    const QCommandLineOption service(
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
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Stand-in for the agent service. Without a scenario it takes commands from standard input."));
    const QCommandLineOption help = parser.addHelpOption();
    parser.addOptions({pipe, scenario, console, launch, service, logFile, web, webFolder});
    parser.addPositionalArgument(QStringLiteral("ARGUMENT"), QStringLiteral("Passed to PROGRAM."),
                                 QStringLiteral("[-- ARGUMENT...]"));

    AgentOptions options;
    if (!parser.parse(commandLine))
        options.problem = parser.errorText();
    const auto valueOf = [&parser](const QCommandLineOption& option) {
        return parser.isSet(option) ? std::optional(parser.value(option)) : std::nullopt;
    };
    options.pipe = parser.value(pipe);
    options.scenario = valueOf(scenario);
    options.takesConsole = parser.isSet(console);
    options.isService = parser.isSet(service);
    options.program = valueOf(launch);
    options.arguments = parser.positionalArguments();
    options.logFile = valueOf(logFile);
    options.webPort = valueOf(web);
    options.webFolder = parser.value(webFolder);
    if (parser.isSet(help))
        options.help = parser.helpText();
    const bool areArgumentsLost = !options.arguments.isEmpty() && !options.program;
    if (options.problem.isEmpty() && (areArgumentsLost || (options.takesConsole && options.isService)))
        options.problem = QStringLiteral("arguments are for --launch alone, and a service has no console");
    return options;
}
