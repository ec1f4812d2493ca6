#pragma once

#include "entity/EnrollEntities.h"

#include <QString>

/// What was found of an enrolment file on a USB drive.
struct EnrollmentFile {
    enum class State {
        Missing,     ///< there is no such file; nothing to tell
        Usable,      ///< `content` has a code and an account
        NotRegular,  ///< a link, or no file at all
        TooLarge,    ///< more than 64 KiB
        Unreadable,  ///< it cannot be opened or read
        NotJson,     ///< the text is not JSON in UTF-8
        WrongFormat, ///< something in it is of the wrong type
        Incomplete,  ///< without code or account
    };

    State state = State::Missing;
    QString path;
    UsbEnrollmentFile content; ///< only of a usable file; its tags keep the rules for tags

    bool IsFound() const { return state != State::Missing; }
    bool IsUsable() const { return state == State::Usable; }

    /// Why a file that was found cannot be used, in the language in use and for the user; else empty. GUI
    /// thread.
    QString Refusal() const;

    /// Reads the newest file "Enrollment*.json" in the folder `drive`. Throws nothing. Any thread; takes as
    /// long as the drive takes.
    static EnrollmentFile FindOn(const QString& drive) noexcept;
};
