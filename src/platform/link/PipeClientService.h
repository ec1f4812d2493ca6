#pragma once

#include "platform/link/LinkTrace.h"
#include "platform/link/PipeConnection.h"
#include "platform/link/PipeExchange.h"
#include "platform/link/PipeKey.h"
#include "platform/system/SystemPipe.h"

#include <QObject>
#include <QPointer>
#include <QThread>
#include <deque>
#include <exception>
#include <functional>
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
/// and the next receiver still gets the message. A receiver that runs an event loop of its own delays
/// nobody: before the next message arrives there, the other receivers get the one that it has taken.
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

    bool IsConnected() const { return m_exchange.IsOpen(); }

    /// Each returns true when the message was handed to the pipe, false when the link is down, the
    /// service has stopped reading, or the message is no valid frame. Nothing is retried.
    bool Send(PipeKey key);
    bool Send(PipeKey key, const std::string& body);
    bool Send(PipeKey key, const RyxEntity& entity);
    /// `packet` is one whole frame, from RyxPackage::PackageData.
    bool Send(const std::string& packet);

    void AddController(ControllerBase* controller);
    void RemoveController(ControllerBase* controller);

    /// Hands every message to a member of `receiver`, as long as that lives, together with DataReceived;
    /// what the member throws stays with it.
    template <class Receiver>
    void Subscribe(Receiver* receiver, void (Receiver::*slot)(PipeKey, const std::string&)) {
        AddSubscriber({receiver, [receiver, slot](PipeKey key, const std::string& body) {
                           Guard(key, receiver->metaObject()->className(),
                                 [&] { (receiver->*slot)(key, body); });
                       }});
    }

    /// Delivers one message to every receiver, as if it had just arrived.
    void Deliver(PipeKey key, const std::string& body);

    const LinkTrace& Trace() const { return m_trace; }

    /// Runs one receiver's handling of `what`, a message's key or a change of the link, and logs what it
    /// throws.
    template <class What, class Handle>
    static void Guard(What what, const char* receiver, Handle&& handle) {
        try {
            handle();
        } catch (const std::exception& error) {
            LogRefused(what, receiver, error.what());
        } catch (...) {
            LogRefused(what, receiver, "unknown exception");
        }
    }

signals:
    void DataReceived(PipeKey key, const std::string& body);
    /// The link came up or dropped; emitted after the controllers were told.
    void ConnectChanged(bool connected);

protected:
    bool event(QEvent* event) override;

private:
    struct Subscriber {
        QPointer<QObject> receiver;
        std::function<void(PipeKey key, const std::string& body)> handle;
    };
    /// Something on its way to its receivers: `tell` tells the one with the number; false behind the last.
    struct Turn {
        const std::function<bool(std::size_t)>& tell;
        std::size_t next = 0;
    };

    void WakeToDeliver();
    void DeliverWaiting();
    bool TakeWaiting();
    void DeliverConnectChange(bool connected);
    void DeliverInTurn(const std::function<bool(std::size_t)>& tell);
    void FinishTurn();
    void AddSubscriber(Subscriber subscriber);
    void ForgetTheGone();
    static void LogRefused(PipeKey key, const char* receiver, const char* reason);
    static void LogRefused(const std::string& what, const char* receiver, const char* reason);

    const SystemPipe& m_system;
    PipeServer m_server;
    PipeExchange m_exchange;
    QThread m_thread;
    PipeConnection* m_connection = nullptr; // lives on m_thread, which deletes it when it ends
    std::deque<PipeExchange::Event> m_waiting;
    bool m_wakePosted = false;
    // During a delivery they only grow, and what goes leaves its place empty.
    std::vector<ControllerBase*> m_controllers;
    std::deque<Subscriber> m_subscribers;
    LinkTrace m_trace;
    Turn* m_turn = nullptr; // the innermost delivery under way
};
