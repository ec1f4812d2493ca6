#include "controllers/PopupsController.h"

#include "platform/link/PipeSendEvent.h"

#include <QCoreApplication>

PopupsController::PopupsController() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool PopupsController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == QCoreApplication::instance() && event->type() == PipeSendEvent::eventType()) {
        const auto* message = static_cast<PipeSendEvent*>(event);
        Send(message->Key(), message->Data());
    }
    return ControllerBase::eventFilter(watched, event);
}
