#pragma once

#include "platform/system/SystemService.h"
#include "platform/system/windows/Handles.h"

#include <QTimer>
#include <QWinEventNotifier>
#include <memory>
#include <string>
#include <vector>

/// An instance of a pipe that waits for a client, and for the next one when it has come. Thread of the event
/// loop.
class PipeInstance {
public:
    PipeInstance(const QString& pipeName, const std::function<void(qintptr)>& connected);
    ~PipeInstance();

    /// The system's error, or 0.
    DWORD Offer(DWORD flags);

private:
    void Take();

    std::wstring m_name;
    std::function<void(qintptr)> m_connected;
    ObjectHandle m_event; // a client has come
    QWinEventNotifier m_notifier;
    QTimer m_retry;
    ObjectHandle m_waiting;
    OVERLAPPED m_overlapped{};
};

/// Serves a pipe to the people of this machine: several instances wait at all times, so that nobody else can
/// take the name, and few of those who come at once find it busy. Thread of the event loop.
class PipeListener final : public SystemService::Listener {
public:
    PipeListener(const QString& pipeName, const std::function<void(qintptr)>& connected);

    /// The system's error, or 0. ERROR_ACCESS_DENIED: another process serves it.
    DWORD Begin();

private:
    std::vector<std::unique_ptr<PipeInstance>> m_instances;
};
