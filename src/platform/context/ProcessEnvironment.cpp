#include "platform/context/ProcessEnvironment.h"

#include "platform/DeveloperBuild.h"
#include "platform/system/SystemProcesses.h"
#include "platform/system/SystemSession.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcessEnvironment>

namespace {

// It names one of the input methods that are there; without it, nobody types Chinese on a Linux desktop.
constexpr char InputMethod[] = "QT_IM_MODULE";

/// The folder of plug-ins that a package brings along; where it uses the system's Qt there is none.
QString OwnPlugins() {
    const QString program = SystemProcesses::Native().GetProcessFilePath(
        static_cast<quint32>(QCoreApplication::applicationPid()));
    return program.isEmpty()
               ? QString()
               : QFileInfo(QDir::fromNativeSeparators(program)).path() + QStringLiteral("/plugins");
}

} // namespace

void ProcessEnvironment::RemoveSteering() {
    for (const QString& name : QProcessEnvironment::systemEnvironment().keys())
        for (const char* prefix :
             {"QT_", "GOOGLE_", "GLOG_"}) // Windows takes upper and lower case for the same
            if (name.startsWith(QLatin1String(prefix), Qt::CaseInsensitive) &&
                name != QLatin1String(InputMethod))
                qunsetenv(name.toLocal8Bit().constData());
}

void ProcessEnvironment::Close() {
    if (IsDeveloperBuild)
        return;
    RemoveSteering();
    SystemSession::Native().ResetVariables();
    if (const QString plugins = OwnPlugins(); QFileInfo(plugins).isDir())
        QCoreApplication::setLibraryPaths({plugins});
    SystemSession::Native().RestrictLibraries();
}
