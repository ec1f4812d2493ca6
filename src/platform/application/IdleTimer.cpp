#include "platform/application/IdleTimer.h"

#include "platform/system/SystemInput.h"

IdleTimer::IdleTimer(QObject* parent) : IdleTimer(SystemInput::Native(), parent) {}

IdleTimer::IdleTimer(const SystemInput& input, QObject* parent) : QObject(parent), m_input(input) {
    m_check.setSingleShot(true);
    m_check.setTimerType(Qt::VeryCoarseTimer);
    connect(&m_check, &QTimer::timeout, this, &IdleTimer::Check);
}

void IdleTimer::Start(int seconds) {
    m_limitMs = qint64{seconds} * 1000;
    m_check.start(static_cast<int>(m_limitMs));
}

void IdleTimer::Stop() {
    m_check.stop();
}

void IdleTimer::Check() {
    const qint64 idle = m_input.MillisecondsSinceInput();
    if (idle >= 0 && idle < m_limitMs)
        m_check.start(static_cast<int>(m_limitMs - idle)); // the earliest moment it can be now
    else
        emit Timeout();
}
