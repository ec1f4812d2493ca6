#pragma once

#include <QJsonDocument>
#include <QString>

/// Files in which the program keeps something for the user from one start to the next. Any thread.
namespace JsonFile {

/// Null when the file is not there, is no regular file, has more than `most` bytes or is no JSON text.
QJsonDocument Read(const QString& file, qint64 most);

/// Puts a file that cannot be used out of the way, so that it is not written over. One that is not there is
/// nothing to do.
void SetAside(const QString& file);

/// Writes the file as a whole or not at all, closed to other users; false, with a log line,
/// when it could not.
bool Write(const QString& file, const QJsonDocument& document);

} // namespace JsonFile
