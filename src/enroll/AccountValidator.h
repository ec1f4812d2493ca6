#pragma once

#include <QRegularExpressionValidator>

/// Judges an administrator's account, an e-mail address, and lets everything be typed: one that kept keys
/// from a wrong text would keep it from being corrected, too.
class AccountValidator : public QRegularExpressionValidator {
public:
    AccountValidator()
        : QRegularExpressionValidator(
              QRegularExpression(QStringLiteral(R"(^[a-zA-Z0-9._-]+@[a-zA-Z0-9_-]+(\.[a-zA-Z0-9_-]+)+$)"))) {}

    State validate(QString& text, int& position) const override {
        return qMax(Intermediate, QRegularExpressionValidator::validate(text, position));
    }
};
