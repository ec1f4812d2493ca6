#pragma once

#include <QString>
#include <string>

/// Text from outside (a command line, a message, a file) as it may stand in a log line: control characters,
/// among them line breaks, are replaced, and what exceeds 500 characters is cut, so that nobody can forge
/// lines or flood the log. Any thread.
std::string LogText(const QString& text);
/// The same of UTF-8; bytes that are none are replaced.
std::string LogText(const std::string& utf8);
