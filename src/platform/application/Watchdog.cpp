#include "platform/application/Watchdog.h"

#include "platform/system/SystemSession.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <glog/logging.h>
#include <utility>

namespace {

constexpr int LookMs = 1000;
// A machine that slept has not stalled: no look counts for more than this.
constexpr int LongestLookMs = LookMs * 3 / 2;

const QEvent::Type Question = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

StallMeter::Verdict StallMeter::Look(int elapsedMs, bool answered, bool mustAnswer) {
    if (std::exchange(m_over, false))
        m_silentMs = 0;
    if (answered) {
        m_over = true;
        return std::exchange(m_told, false) ? Verdict::Recovered : Verdict::Well;
    }
    m_silentMs += std::min(elapsedMs, LongestLookMs);
    if (mustAnswer && m_silentMs >= GiveUpMs)
        return Verdict::Hopeless;
    if (m_silentMs >= TellMs && !std::exchange(m_told, true))
        return Verdict::Stalled;
    return Verdict::Well;
}

Watchdog::Watchdog() : m_thread([this] { Watch(); }) {}

Watchdog::~Watchdog() {
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ends = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

void Watchdog::EndProcess(const std::string& reason) {
    std::thread([] {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        std::_Exit(ExitCode);
    }).detach();
    LOG(ERROR) << "Watchdog::EndProcess " << reason;
    google::FlushLogFiles(google::GLOG_INFO);
    std::_Exit(ExitCode);
}

bool Watchdog::event(QEvent* event) {
    if (event->type() != Question)
        return QObject::event(event);
    m_answered = true;
    return true;
}

void Watchdog::Watch() {
    using Clock = std::chrono::steady_clock;
    SystemSession::Native().ProtectThread();
    StallMeter meter;
    Clock::time_point before = Clock::now();
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_wake.wait_for(lock, std::chrono::milliseconds(LookMs), [this] { return m_ends; })) {
        const Clock::time_point now = Clock::now();
        const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(now - before);
        before = now;
        const bool answered = m_answered.exchange(false);
        switch (meter.Look(static_cast<int>(elapsed.count()), answered, m_locked)) {
        case StallMeter::Verdict::Well:
            break;
        case StallMeter::Verdict::Stalled:
            LOG(WARNING) << "Watchdog::Watch the user interface has not answered for more than "
                         << StallMeter::TellMs << " ms";
            break;
        case StallMeter::Verdict::Recovered:
            LOG(WARNING) << "Watchdog::Watch the user interface answers again after " << meter.SilentMs()
                         << " ms";
            break;
        case StallMeter::Verdict::Hopeless:
            EndProcess("the screen is locked and the user interface has not answered for " +
                       std::to_string(meter.SilentMs()) + " ms");
        }
        if (answered)
            QCoreApplication::postEvent(this, new QEvent(Question));
    }
}
