#include "platform/link/PipeEventWatcher.h"

#include "platform/link/PipeClientService.h"
#include "platform/link/PipeReceiveEvent.h"

#include <QCoreApplication>
#include <utility>

PipeEventWatcher::PipeEventWatcher(QObject* parent, Handler handler)
    : QObject(parent), m_handler(std::move(handler)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool PipeEventWatcher::eventFilter(QObject* watched, QEvent* event) {
    if (watched == QCoreApplication::instance() && event->type() == PipeReceiveEvent::eventType()) {
        const auto* message = static_cast<PipeReceiveEvent*>(event);
        PipeClientService::Guard(message->Key(), parent()->metaObject()->className(),
                                 [&] { m_handler(message->Key(), message->Data()); });
    }
    return QObject::eventFilter(watched, event);
}
