#pragma once

#include "platform/system/SystemService.h"
#include "platform/system/windows/Handles.h"

#include <QWinEventNotifier>

/// A program on the desktop of a user whose token this process may have. Thread of the event loop.
class SessionProgram final : public SystemService::Program {
public:
    static std::unique_ptr<SessionProgram> Start(quint32 session, const QString& program,
                                                 const QStringList& arguments,
                                                 const std::function<void(quint32)>& ended, QString& problem);
    /// Takes over the process.
    SessionProgram(const PROCESS_INFORMATION& process, const std::function<void(quint32)>& ended);
    ~SessionProgram() override;

    quint32 Id() const override { return m_id; }

private:
    ObjectHandle m_process;
    quint32 m_id;
    QWinEventNotifier m_notifier;
};

/// The token of the user who has logged on in the session; null, with the system's last error, when there is
/// none or this process may not have it.
ObjectHandle TokenOfSession(quint32 session);
