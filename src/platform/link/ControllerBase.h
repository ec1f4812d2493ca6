#pragma once

#include "platform/link/PipeKey.h"

#include <QObject>
#include <QPointer>
#include <string>

class PipeClientService;
struct RyxEntity;

/// Turns messages of the service into actions, and answers. Lives on the GUI thread.
class ControllerBase : public QObject {
    Q_OBJECT

public:
    explicit ControllerBase(QObject* parent = nullptr) : QObject(parent) {}
    ~ControllerBase() override;

    /// Gives the controller its link: from now on it receives messages and link changes, and can send.
    void SetService(PipeClientService* service);

    /// True when the message was handed to the pipe; false without a service or while the link is down.
    bool Send(PipeKey key);
    bool Send(PipeKey key, const std::string& body);
    bool Send(PipeKey key, const RyxEntity& entity);

    /// The link came up or dropped.
    virtual void OnConnectChanged(bool connected) { Q_UNUSED(connected) }
    /// A message arrived; keys that are not the controller's own are to be ignored.
    virtual void OnPipeDataReceived(PipeKey key, const std::string& body) {
        Q_UNUSED(key)
        Q_UNUSED(body)
    }

private:
    QPointer<PipeClientService> m_service;
};
