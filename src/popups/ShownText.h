#pragma once

#include <QRegularExpression>
#include <QString>

/// A text of another program as the user may read it: without the marks that turn the order of its letters
/// around. Any thread.
inline QString ShownText(QString text) {
    static const QRegularExpression marks(QStringLiteral("[\\x{202A}-\\x{202E}\\x{2066}-\\x{2069}]"));
    return text.remove(marks);
}
