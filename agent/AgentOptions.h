#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// What the command line asks of ryx-agent.
struct AgentOptions {
    QString pipe;
    std::optional<QString> scenario; ///< A file.
    bool takesConsole = false;
    bool isService = false;
    std::optional<QString> program; ///< The front end to start, with `arguments`.
    QStringList arguments;
    std::optional<QString> logFile;
    std::optional<QString> webPort; ///< As it was written.
    QString webFolder;

    QString help;    ///< Not empty when it was asked for: the text to show.
    QString problem; ///< Not empty when the words make no sense.

    static AgentOptions Of(const QStringList& commandLine);
};
