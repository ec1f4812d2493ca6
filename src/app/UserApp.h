#pragma once

#include <QObject>

#ifdef RYX_USER_LIBRARY
#define RYX_USER_EXPORT Q_DECL_EXPORT
#else
#define RYX_USER_EXPORT Q_DECL_IMPORT
#endif

/// The user-session front end as a whole.
class UserApp : public QObject {
    Q_OBJECT

public:
    /// Runs the front end on the calling thread, which becomes the GUI thread. Returns the process's
    /// exit code: 0 when it gives way to a running instance, otherwise the event loop's. Throws
    /// HResultError when COM cannot be started; whatever it throws, the host tells the administrator.
    RYX_USER_EXPORT static int Run(int argc, char** argv);

private:
    /// The arguments of a second start arrived, joined; none at all ask for the window.
    void OnOtherInstanceMessageReceived(const QString& message);
};
