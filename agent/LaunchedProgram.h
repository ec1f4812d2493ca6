#pragma once

#include "Program.h"

#include <QProcess>

/// A program beside this one, for the same user; it writes nothing to this one's output.
class LaunchedProgram : public Program {
public:
    LaunchedProgram(const QString& program, const QStringList& arguments);

    void Start() override { m_process.start(); }
    std::string End() override;

private:
    std::string TellEnd() const;

    QProcess m_process;
};
