#pragma once

#include "platform/link/PipeKey.h"

#include <QEvent>
#include <string>
#include <utility>

/// A message from the service, delivered to the application object on the GUI thread, where event
/// filters see it.
class PipeReceiveEvent : public QEvent {
public:
    PipeReceiveEvent(PipeKey key, std::string data)
        : QEvent(eventType()), m_key(key), m_data(std::move(data)) {}

    PipeKey Key() const { return m_key; }
    const std::string& Data() const { return m_data; }

    static QEvent::Type eventType() {
        static const int type = QEvent::registerEventType();
        return static_cast<QEvent::Type>(type);
    }

private:
    PipeKey m_key;
    std::string m_data;
};
