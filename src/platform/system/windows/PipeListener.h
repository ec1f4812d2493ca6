#pragma once

#include "platform/system/SystemService.h"
#include "platform/system/windows/Handles.h"

#include <QTimer>
#include <QWinEventNotifier>
#include <string>

/// Serves a pipe to the people of this machine: one instance always waits for the next of them, so that
/// nobody else can take the name. Thread of the event loop.
class PipeListener final : public SystemService::Listener {
public:
    PipeListener(const QString& pipeName, const std::function<void(qintptr)>& connected);
    ~PipeListener() override;

    /// The system's error, or 0. ERROR_ACCESS_DENIED: another process serves it.
    DWORD Begin() { return Offer(FILE_FLAG_FIRST_PIPE_INSTANCE); }

private:
    DWORD Offer(DWORD flags);
    void Take();

    std::wstring m_name;
    std::function<void(qintptr)> m_connected;
    ObjectHandle m_event; // a client has come
    QWinEventNotifier m_notifier;
    QTimer m_retry;
    ObjectHandle m_waiting;
    OVERLAPPED m_overlapped{};
};
