#pragma once

#include "platform/link/PipeConnection.h"
#include "platform/link/PipeExchange.h"
#include "platform/link/PipeKey.h"
#include "platform/system/SystemPipe.h"

#include <QObject>
#include <QThread>
#include <deque>
#include <exception>
#include <string>
#include <vector>

class ControllerBase;
struct RyxEntity;

Q_DECLARE_METATYPE(PipeKey)

/// The link to the agent service. A thread of its own connects, reads and writes; everything public
/// is called, and every message delivered, on the GUI thread, in the order of arrival, in three ways:
/// to the controllers, through DataReceived, and as a PipeReceiveEvent to the application object.
///
/// Delivery is the one place where what a receiver throws is caught: it is logged with key and reason,
/// and the next receiver still gets the message.
class PipeClientService : public QObject {
    Q_OBJECT

public:
    explicit PipeClientService(const SystemPipe& system = SystemPipe::Native());
    ~PipeClientService() override;

    /// The process's one link.
    static PipeClientService* Instance();

    /// Where to connect and whom to accept there; counts from the next Start.
    void SetServer(PipeServer server) { m_server = std::move(server); }

    /// Starts connecting, and connecting again after every drop. Does nothing when already started.
    void Start();
    /// Ends the link; what was sent before is still written if the service reads it at once.
    void Stop();

    bool IsConnected() const { return m_exchange.IsUp(); }

    /// Each returns true when the message was handed to the pipe, false when the link is down, the
    /// service has stopped reading, or the message is no valid frame. Nothing is retried.
    bool Send(PipeKey key);
    bool Send(PipeKey key, const std::string& body);
    bool Send(PipeKey key, const RyxEntity& entity);
    /// `packet` is one whole frame, from RyxPackage::PackageData.
    bool Send(const std::string& packet);

    void AddController(ControllerBase* controller);
    void RemoveController(ControllerBase* controller);

    /// Connects DataReceived to a member of `receiver`; what the member throws stays with it.
    template <class Receiver>
    void Subscribe(Receiver* receiver, void (Receiver::*slot)(PipeKey, const std::string&)) {
        connect(this, &PipeClientService::DataReceived, receiver,
                [receiver, slot](PipeKey key, const std::string& body) {
                    Guard(key, receiver->metaObject()->className(), [&] { (receiver->*slot)(key, body); });
                });
    }

    /// Delivers one message to every receiver, as if it had just arrived.
    void Deliver(PipeKey key, const std::string& body);

    /// Runs one receiver's handling of a message, and logs what it throws.
    template <class Handle>
    static void Guard(PipeKey key, const char* receiver, Handle&& handle) {
        try {
            handle();
        } catch (const std::exception& error) {
            LogRefused(key, receiver, error.what());
        } catch (...) {
            LogRefused(key, receiver, "unknown exception");
        }
    }

signals:
    void DataReceived(PipeKey key, const std::string& body);
    /// The link came up or dropped; emitted after the controllers were told.
    void ConnectChanged(bool connected);

protected:
    bool event(QEvent* event) override;

private:
    void WakeToDeliver();
    void DeliverWaiting();
    bool TakeWaiting();
    void DeliverConnectChange(bool connected);
    static void LogRefused(PipeKey key, const char* receiver, const char* reason);

    const SystemPipe& m_system;
    PipeServer m_server;
    PipeExchange m_exchange;
    QThread m_thread;
    PipeConnection* m_connection = nullptr; // lives on m_thread, which deletes it when it ends
    std::deque<PipeExchange::Event> m_waiting;
    bool m_wakePosted = false;
    std::vector<ControllerBase*> m_controllers;
};
