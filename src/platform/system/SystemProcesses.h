#pragma once

#include <QString>
#include <QtGlobal>

/// One process, told from a later one that the system gives the same number.
struct ProcessIdentity {
    quint32 id = 0;      ///< 0: none
    quint32 started = 0; ///< a mark of the moment in which it was started; 0 when the system would not tell

    bool operator==(const ProcessIdentity& other) const { return id == other.id && started == other.started; }
    bool operator!=(const ProcessIdentity& other) const { return !(*this == other); }
};

/// The processes of this machine. As it stands it knows none. Any thread.
class SystemProcesses {
public:
    enum class Ending { Done, NotOpened, NotTerminated, NoLongerThere };
    struct Terminated {
        Ending ending = Ending::NoLongerThere;
        quint32 error = 0; ///< the system's number for what failed
    };

    virtual ~SystemProcesses() = default;

    /// The first running process with this program name and, but for upper and lower case, this whole command
    /// line. What fails is logged and finds none. May take its time.
    virtual ProcessIdentity Find(const QString& /*name*/, const QString& /*commandLine*/) const { return {}; }

    /// The full path of the program that the process runs; empty when it cannot be read.
    virtual QString GetProcessFilePath(quint32 /*id*/) const { return {}; }

    /// The process that has this number now.
    virtual ProcessIdentity Identify(quint32 /*id*/) const { return {}; }

    /// Ends this very process, with the exit code 0.
    virtual Terminated Terminate(const ProcessIdentity& /*process*/) const { return {}; }

    static const SystemProcesses& Native();
};
