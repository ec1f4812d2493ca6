#pragma once

#include <QRegularExpression>
#include <QString>
#include <string>

/// A text from outside as the user may read it: without the marks that turn the order of its letters around.
/// Any thread.
inline QString ShownText(QString text) {
    static const QRegularExpression marks(QStringLiteral("[\\x{202A}-\\x{202E}\\x{2066}-\\x{2069}]"));
    return text.remove(marks);
}

/// The same of a name of the service's: on one line, and no longer than anybody reads.
inline QString ShownName(const std::string& utf8, int most = 200) {
    return ShownText(QString::fromUtf8(utf8.data(), qMin(static_cast<int>(utf8.size()), 4 * most)))
        .simplified()
        .left(most);
}
