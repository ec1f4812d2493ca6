#include "platform/files/Workers.h"

#include "platform/security/LogText.h"

#include <glog/logging.h>

Workers::Workers(int threads) : m_pool(std::make_unique<QThreadPool>()) {
    m_pool->setMaxThreadCount(threads);
}

Workers::~Workers() {
    if (m_pool->activeThreadCount() == 0)
        return;
    LOG(WARNING) << "Workers::~Workers leaves work behind that does not end";
    static_cast<void>(m_pool.release()); // its destructor would wait
}

void Workers::LogException(const std::exception& exception) {
    LOG(ERROR) << "Workers::Run ended with an exception: " << LogText(std::string(exception.what()));
}

void Workers::Join(QDeadlineTimer deadline) {
    m_pool->clear();
    m_pool->waitForDone(static_cast<int>(deadline.remainingTime()));
}
