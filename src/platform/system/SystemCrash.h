#pragma once

#include <QString>
#include <string>

/// What is left of a process that cannot go on.
class SystemCrash {
public:
    virtual ~SystemCrash() = default;

    /// From now on a crash of any thread leaves a record in `file`, which is the user's and the
    /// administrators' alone: where each thread was (Windows) or the one that crashed (Linux), and nothing of
    /// what the program knew. Whatever comes of that, the process is gone within five seconds. A crash
    /// reporter that was started before gets its turn afterwards. Main thread, once; makes ready all that a
    /// crash needs.
    virtual void Record(const QString& file) const = 0;

    /// What the name of a record ends with, such as ".dmp".
    virtual QString RecordSuffix() const = 0;

    /// Does what Record has asked of this process, where it lets another one write the record; false when
    /// this is no such process.
    virtual bool WriteRecord() const { return false; }

    /// Tells the administrator why the process ends: in the system's event log, or on standard error.
    virtual void TellEnd(const std::string& reason) const = 0;

    static const SystemCrash& Native();
};
