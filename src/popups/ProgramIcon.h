#pragma once

#include <QIcon>
#include <QString>

/// Icons of programs, by their paths. GUI thread.
namespace ProgramIcon {

/// The program's own; null when it has none, or when the path leads to another machine, which may not answer.
QIcon Own(const QString& path);

/// The same, or the theme's for a program that has none.
QIcon Shown(const QString& path);

} // namespace ProgramIcon
