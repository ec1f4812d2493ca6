#pragma once

#include "EventLog.h"

#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>
#include <vector>

/// One command, understood and ready to be carried out.
struct Step {
    std::string text;            ///< the command as it was given
    std::function<void()> act;   ///< done once, at the step's turn; may be empty
    std::function<bool()> isMet; ///< whether the step is over; empty: at once
    double seconds = 0;          ///< how long isMet may take
    bool mayExpire = false;      ///< the end of the time is a good end too
    bool inScenario = false;     ///< when it fails, the steps behind it are dropped
};

/// Carries out steps one after the other. A step that is not over in its time has failed, which is told
/// in the event log.
class StepPlayer : public QObject {
    Q_OBJECT

public:
    explicit StepPlayer(EventLog& log);

    void Add(Step step) { m_steps.push_back(std::move(step)); }

    /// Goes on as far as that is possible now; to be called whenever something has happened.
    void Play();

    /// Carries out nothing more.
    void Stop() { m_stopped = true; }

    /// False once a step has failed.
    bool AllMet() const { return m_allMet; }

signals:
    /// There is nothing left to carry out.
    void Idle();

private:
    bool PlayFront();

    EventLog& m_log;
    std::deque<Step> m_steps;
    QTimer m_deadline;
    bool m_begun = false; // the front step has acted
    bool m_playing = false;
    bool m_stopped = false;
    bool m_allMet = true;
};
