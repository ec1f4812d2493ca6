#include "platform/application/IdleTimer.h"

#include "platform/system/SystemDesktop.h"

#include <algorithm>

IdleTimer::IdleTimer(QObject* parent) : IdleTimer(SystemDesktop::Native(), parent) {}

IdleTimer::IdleTimer(const SystemDesktop& desktop, QObject* parent) : QObject(parent), m_desktop(desktop) {
    m_check.setSingleShot(true);
    m_check.setTimerType(Qt::VeryCoarseTimer);
    connect(&m_check, &QTimer::timeout, this, &IdleTimer::Check);
}

void IdleTimer::Start(int seconds) {
    m_limit = qint64{seconds} * 1000;
    m_running.start();
    m_check.start(static_cast<int>(m_limit));
}

void IdleTimer::Stop() {
    m_check.stop();
}

void IdleTimer::Check() {
    const qint64 rest = m_limit - IdleMilliseconds();
    if (rest > 0)
        m_check.start(static_cast<int>(rest)); // input came in between: the earliest moment it can be now
    else
        emit Timeout();
}

qint64 IdleTimer::IdleMilliseconds() const {
    const qint64 idle = m_desktop.MillisecondsSinceInput();
    return idle < 0 ? m_running.elapsed() : std::min(idle, m_running.elapsed());
}
