#pragma once

#include <QString>

/// Names of files that come from elsewhere. Any thread.
namespace FileNames {

/// `name` as it may stand in a folder on every system: without a path, without control and direction
/// characters and what has a meaning in names, never a device's name, never empty, and not too long.
QString Safe(const QString& name);

/// Whether the file is a program or a script, or may start one, going by its name.
bool IsProgram(const QString& name);

/// Renames `file` to `name` in its folder or, when that is taken, to "name (2)" and so on; nothing is
/// overwritten. Returns the new path, empty when it fails.
QString Place(const QString& file, const QString& name);

/// Copies `file` to `target` or, when that is taken, to "target (2)" and so on; returns the copy's path,
/// empty when it fails.
QString Copy(const QString& file, const QString& target);

} // namespace FileNames
