#include "platform/link/PipeClientService.h"

#include "entity/RyxEntity.h"
#include "platform/link/ControllerBase.h"
#include "platform/link/PipeReceiveEvent.h"
#include "platform/security/LogText.h"
#include "platform/system/SystemSession.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QScopedValueRollback>
#include <algorithm>
#include <glog/logging.h>

namespace {

// After so long of delivering, the GUI thread gets a turn for painting and input.
constexpr qint64 DeliverySliceMs = 8;

const QEvent::Type WakeEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

PipeClientService::PipeClientService(const SystemPipe& system) : m_system(system) {
    qRegisterMetaType<PipeKey>("PipeKey");
    qRegisterMetaType<std::string>("std::string");
    m_thread.setObjectName(QStringLiteral("PipeLink"));
}

PipeClientService::~PipeClientService() {
    Stop();
}

PipeClientService* PipeClientService::Instance() {
    static PipeClientService service;
    return &service;
}

void PipeClientService::Start() {
    if (m_connection)
        return;
    m_connection = new PipeConnection(m_exchange, m_server, m_system);
    m_connection->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_connection, &QObject::deleteLater);
    // Direct: the I/O thread itself posts the wake-up, and only for the first event that waits.
    connect(
        m_connection, &PipeConnection::EventsReady, this,
        [this] { QCoreApplication::postEvent(this, new QEvent(WakeEvent)); }, Qt::DirectConnection);
    m_thread.start();
    QMetaObject::invokeMethod(m_connection, [] { SystemSession::Native().ProtectThread(); });
    QMetaObject::invokeMethod(m_connection, &PipeConnection::Open);
}

void PipeClientService::Stop() {
    if (!m_connection)
        return;
    QMetaObject::invokeMethod(m_connection, &PipeConnection::Close, Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
    m_exchange.Close();
    m_connection = nullptr;
}

bool PipeClientService::Send(PipeKey key) {
    return Send(key, std::string());
}

bool PipeClientService::Send(PipeKey key, const RyxEntity& entity) {
    return Send(key, entity.WriteToString());
}

bool PipeClientService::Send(PipeKey key, const std::string& body) {
    return Send(RyxPackage::PackageData(key, body));
}

bool PipeClientService::Send(const std::string& packet) {
    if (!RyxPackage::IsPackage(packet)) {
        LOG(WARNING) << "PipeClientService::Send refuses " << packet.size() << " bytes that are no frame";
        return false;
    }
    const PipeExchange::Queued queued = m_exchange.PushPacket(packet);
    const bool taken = queued != PipeExchange::Queued::Refused;
    m_trace.Add(QDateTime::currentMSecsSinceEpoch(),
                taken ? LinkTrace::Event::Sent : LinkTrace::Event::NotSent, RyxPackage::KeyOf(packet),
                packet.size() - RyxPackage::HeaderSize);
    if (queued == PipeExchange::Queued::First)
        QMetaObject::invokeMethod(m_connection, &PipeConnection::WritePackets);
    return taken;
}

void PipeClientService::AddController(ControllerBase* controller) {
    ForgetTheGone();
    m_controllers.push_back(controller);
}

void PipeClientService::RemoveController(ControllerBase* controller) {
    std::replace(m_controllers.begin(), m_controllers.end(), controller,
                 static_cast<ControllerBase*>(nullptr));
}

void PipeClientService::AddSubscriber(Subscriber subscriber) {
    ForgetTheGone();
    m_subscribers.push_back(std::move(subscriber));
}

void PipeClientService::ForgetTheGone() {
    if (m_turn)
        return;
    m_controllers.erase(std::remove(m_controllers.begin(), m_controllers.end(), nullptr),
                        m_controllers.end());
    m_subscribers.erase(std::remove_if(m_subscribers.begin(), m_subscribers.end(),
                                       [](const Subscriber& subscriber) { return !subscriber.receiver; }),
                        m_subscribers.end());
}

bool PipeClientService::event(QEvent* event) {
    if (event->type() != WakeEvent)
        return QObject::event(event);
    m_wakePosted = false;
    DeliverWaiting();
    return true;
}

void PipeClientService::WakeToDeliver() {
    if (!std::exchange(m_wakePosted, true))
        QCoreApplication::postEvent(this, new QEvent(WakeEvent));
}

void PipeClientService::DeliverWaiting() {
    QElapsedTimer slice;
    slice.start();
    while (TakeWaiting()) {
        const PipeExchange::Event next = std::move(m_waiting.front());
        m_waiting.pop_front();
        // Posted before the receivers run: one of them may spin an event loop of its own (a dialog),
        // and the messages behind must then arrive there.
        if (!m_waiting.empty() || m_exchange.HasEvents())
            WakeToDeliver();
        if (next.kind == PipeExchange::Event::Kind::Message)
            Deliver(next.frame.key, next.frame.body);
        else
            DeliverConnectChange(next.kind == PipeExchange::Event::Kind::Connected);
        if (slice.hasExpired(DeliverySliceMs) && (!m_waiting.empty() || m_exchange.HasEvents())) {
            WakeToDeliver();
            return;
        }
    }
}

bool PipeClientService::TakeWaiting() {
    // Only an empty queue takes more, so that what waits here stays within the exchange's limit.
    if (m_waiting.empty() && m_exchange.TakeEvents(m_waiting) && m_connection)
        QMetaObject::invokeMethod(m_connection, &PipeConnection::ReadFrames);
    return !m_waiting.empty();
}

// Before anything new is told, the receivers behind one that runs an event loop of its own are told what it
// has kept from them: nobody sees the messages in another order.
void PipeClientService::DeliverInTurn(const std::function<bool(std::size_t)>& tell) {
    FinishTurn();
    Turn turn{tell};
    const QScopedValueRollback<Turn*> innermost(m_turn, &turn);
    FinishTurn();
}

void PipeClientService::FinishTurn() {
    Turn* turn = m_turn;
    while (turn && turn->tell(turn->next++)) {
    }
}

void PipeClientService::Deliver(PipeKey key, const std::string& body) {
    m_trace.Add(QDateTime::currentMSecsSinceEpoch(), LinkTrace::Event::Received, key, body.size());
    const std::size_t controllers = m_controllers.size();
    const std::size_t subscribers = m_subscribers.size();
    DeliverInTurn([&](std::size_t number) {
        if (number < controllers) {
            if (ControllerBase* controller = m_controllers[number])
                Guard(key, controller->metaObject()->className(),
                      [&] { controller->OnPipeDataReceived(key, body); });
        } else if (number < controllers + subscribers) {
            const Subscriber& subscriber = m_subscribers[number - controllers];
            if (subscriber.receiver)
                subscriber.handle(key, body);
        } else if (number == controllers + subscribers) {
            Guard(key, "a DataReceived slot", [&] { emit DataReceived(key, body); });
        } else if (number == controllers + subscribers + 1) {
            PipeReceiveEvent event(key, body);
            Guard(key, "an event filter",
                  [&] { QCoreApplication::sendEvent(QCoreApplication::instance(), &event); });
        } else {
            return false;
        }
        return true;
    });
}

void PipeClientService::DeliverConnectChange(bool connected) {
    const char* change = connected ? "connected" : "disconnected";
    LOG(INFO) << "PipeClientService::DeliverConnectChange " << change;
    m_trace.Add(QDateTime::currentMSecsSinceEpoch(),
                connected ? LinkTrace::Event::Connected : LinkTrace::Event::Disconnected);
    const std::size_t controllers = m_controllers.size();
    DeliverInTurn([&](std::size_t number) {
        if (number < controllers) {
            if (ControllerBase* controller = m_controllers[number])
                Guard(change, controller->metaObject()->className(),
                      [&] { controller->OnConnectChanged(connected); });
        } else if (number == controllers) {
            Guard(change, "a ConnectChanged slot", [&] { emit ConnectChanged(connected); });
        } else {
            return false;
        }
        return true;
    });
}

void PipeClientService::LogRefused(PipeKey key, const char* receiver, const char* reason) {
    const char* name = PipeKeyName(key);
    LogRefused("key " + std::to_string(static_cast<std::int32_t>(key)) + " (" + (name ? name : "unknown") +
                   ')',
               receiver, reason);
}

void PipeClientService::LogRefused(const std::string& what, const char* receiver, const char* reason) {
    LOG(WARNING) << "PipeClientService::Deliver " << what << " refused by " << receiver << ": "
                 << LogText(std::string(reason));
}
