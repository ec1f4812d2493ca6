#include "StepPlayer.h"

#include <utility>

StepPlayer::StepPlayer(EventLog& log) : m_log(log) {
    m_deadline.setSingleShot(true);
    m_deadline.setTimerType(Qt::PreciseTimer);
    connect(&m_deadline, &QTimer::timeout, this, &StepPlayer::Play);
}

void StepPlayer::Play() {
    // What a step does may make something happen at once; the loop below looks at it anyway.
    if (m_playing)
        return;
    m_playing = true;
    while (!m_stopped && !m_steps.empty() && PlayFront()) {
    }
    m_playing = false;
    if (!m_stopped && m_steps.empty())
        emit Idle();
}

bool StepPlayer::PlayFront() {
    const Step& step = m_steps.front();
    if (!std::exchange(m_begun, true)) {
        if (step.act)
            step.act();
        if (step.isMet && step.seconds > 0)
            m_deadline.start(static_cast<int>(step.seconds * 1000));
    }
    const bool met = !step.isMet || step.isMet();
    if (!met && m_deadline.isActive())
        return false;

    m_deadline.stop();
    m_begun = false;
    const Step done = std::move(m_steps.front());
    m_steps.pop_front();
    if (!met && !done.mayExpire) {
        m_allMet = false;
        m_log.Line("failed: " + done.text);
        while (done.inScenario && !m_steps.empty() && m_steps.front().inScenario)
            m_steps.pop_front();
    }
    return true;
}
