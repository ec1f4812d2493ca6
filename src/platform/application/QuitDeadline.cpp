#include "platform/application/QuitDeadline.h"

#include <chrono>
#include <cstdlib>

QuitDeadline::~QuitDeadline() {
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isInTime = true;
    }
    m_inTime.notify_one();
    m_thread.join();
}

void QuitDeadline::Begin(int exitCode) {
    m_thread = std::thread([this, exitCode] {
        std::unique_lock<std::mutex> lock(m_mutex);
        if (!m_inTime.wait_for(lock, std::chrono::seconds(2), [this] { return m_isInTime; }))
            std::_Exit(exitCode);
    });
}
