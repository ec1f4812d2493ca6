#pragma once

#include "entity/RyxEntity.h"
#include "platform/link/PipeKey.h"

#include <QEvent>
#include <string>

/// A message to the service, posted to the application object by code that must not touch the pipe
/// itself (other threads, hook callbacks). May be constructed and posted on any thread.
class PipeSendEvent : public QEvent {
public:
    PipeSendEvent(PipeKey key, RyxEntity& entity)
        : QEvent(eventType()), m_key(key), m_data(entity.WriteToString()) {}

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
