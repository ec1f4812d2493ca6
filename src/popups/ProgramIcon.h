#pragma once

#include <QIcon>
#include <QString>

/// The icon of the program with this path; the theme's own for one that has none, or whose path leads to
/// another machine, which may not answer. GUI thread.
QIcon ProgramIcon(const QString& path);
