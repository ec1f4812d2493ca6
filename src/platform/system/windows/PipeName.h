#pragma once

#include <QString>
#include <string>

/// The pipe's name as the system wants it. Nothing but a pipe of this machine has such a name.
inline std::wstring PipeName(const QString& name) {
    static const QString prefix = QStringLiteral("\\\\.\\pipe\\");
    return (name.startsWith(prefix) ? name : prefix + name).toStdWString();
}
