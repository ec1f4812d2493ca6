#include "lock/PasswordAttempts.h"

#include <glog/logging.h>

PasswordAttempts::Verdict PasswordAttempts::Check(bool wrongAttempt) {
    const std::int64_t now = m_clock.Now().toSecsSinceEpoch();
    m_lockedOut = false;
    if (wrongAttempt) {
        ++m_wrong;
        LOG(INFO) << "PasswordAttempts::Check input password eorr cout is :" << m_wrong << ",time is "
                  << m_start;
    }
    if (m_wrong <= FreeAttempts)
        return Verdict::Free;
    if (m_start == 0) {
        if (wrongAttempt)
            m_start = now;
        return Verdict::Counting;
    }
    m_lockedOut = now - m_start < LockOutSeconds;
    if (m_lockedOut)
        return Verdict::LockedOut;
    m_wrong = 0;
    m_start = 0;
    return Verdict::Released;
}
