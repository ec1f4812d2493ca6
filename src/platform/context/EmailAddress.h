#pragma once

#include <QRegularExpression>

/// Whether `text`, from its first character to its last, is an e-mail address that the service takes: it
/// takes no plus, and wants a dot behind the at-sign. Any thread.
inline bool IsEmailAddress(const QString& text) {
    // A plain "$" would let a line break at the end pass.
    static const QRegularExpression address(QRegularExpression::anchoredPattern(
        QStringLiteral("[a-zA-Z0-9._-]+@[a-zA-Z0-9_-]+(\\.[a-zA-Z0-9_-]+)+")));
    return address.match(text).hasMatch();
}
