#include "platform/link/PipeClientService.h"

#include "entity/RyxEntity.h"
#include "platform/link/ControllerBase.h"
#include "platform/link/PipeReceiveEvent.h"

#include <QCoreApplication>
#include <QElapsedTimer>
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
    QMetaObject::invokeMethod(m_connection, &PipeConnection::Open);
}

void PipeClientService::Stop() {
    if (!m_connection)
        return;
    QMetaObject::invokeMethod(m_connection, &PipeConnection::Close, Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
    m_exchange.SetUp(false);
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
    if (queued == PipeExchange::Queued::First)
        QMetaObject::invokeMethod(m_connection, &PipeConnection::WritePackets);
    return queued != PipeExchange::Queued::Refused;
}

void PipeClientService::AddController(ControllerBase* controller) {
    m_controllers.push_back(controller);
}

void PipeClientService::RemoveController(ControllerBase* controller) {
    m_controllers.erase(std::remove(m_controllers.begin(), m_controllers.end(), controller),
                        m_controllers.end());
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

void PipeClientService::Deliver(PipeKey key, const std::string& body) {
    const std::vector<ControllerBase*> controllers = m_controllers;
    for (ControllerBase* controller : controllers)
        Guard(key, controller->metaObject()->className(), [&] { controller->OnPipeDataReceived(key, body); });
    Guard(key, "a DataReceived slot", [&] { emit DataReceived(key, body); });
    PipeReceiveEvent event(key, body);
    Guard(key, "an event filter", [&] { QCoreApplication::sendEvent(QCoreApplication::instance(), &event); });
}

void PipeClientService::DeliverConnectChange(bool connected) {
    LOG(INFO) << "PipeClientService::DeliverConnectChange " << (connected ? "connected" : "disconnected");
    const std::vector<ControllerBase*> controllers = m_controllers;
    for (ControllerBase* controller : controllers)
        controller->OnConnectChanged(connected);
    emit ConnectChanged(connected);
}

void PipeClientService::LogRefused(PipeKey key, const char* receiver, const char* reason) {
    const char* name = PipeKeyName(key);
    LOG(WARNING) << "PipeClientService::Deliver key " << static_cast<std::int32_t>(key) << " ("
                 << (name ? name : "unknown") << ") refused by " << receiver << ": " << reason;
}
