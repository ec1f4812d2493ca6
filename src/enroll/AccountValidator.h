#pragma once

#include "platform/context/EmailAddress.h"

#include <QValidator>

/// Judges an administrator's account, an e-mail address, and lets everything be typed: one that kept keys
/// from a wrong text would keep it from being corrected, too.
class AccountValidator : public QValidator {
public:
    State validate(QString& text, int& /*position*/) const override {
        return IsEmailAddress(text) ? Acceptable : Intermediate;
    }
};
