#pragma once

#include "controllers/PopupRules.h"
#include "controllers/ProductNames.h"
#include "platform/application/Clock.h"
#include "platform/system/SystemDesktop.h"
#include "platform/system/SystemProcesses.h"

#include <atomic>
#include <deque>
#include <map>
#include <memory>
#include <mutex>

/// Looks at each window that is shown, reports the one that a rule matches and asks it to close. Whatever may
/// take its time runs on threads of its own, which live as long as they have something to do and which nobody
/// waits for: a program's file may lie on a slow network, and a program may ask its user whether to close, or
/// hang. It lives as long as the last of them.
class PopupBlocker : public std::enable_shared_from_this<PopupBlocker> {
public:
    PopupBlocker(PopupRules& rules, const SystemDesktop& desktop, const SystemProcesses& processes,
                 const SystemPrograms& programs, const Clock& clock);

    /// The window was shown. The thread that is told so; waits for nothing but what the system knows.
    void Look(WId window);

private:
    struct Shown {
        WId id = 0;
        PopupWindow window; ///< without the product's name
    };

    void WorkOn(const QString& file);
    void Block(const Shown& shown, const QString& file);
    void Close(WId window);

    PopupRules& m_rules;
    const SystemDesktop& m_desktop;
    const SystemProcesses& m_processes;
    const Clock& m_clock;
    ProductNames m_productNames;
    std::mutex m_mutex;
    std::map<QString, std::deque<Shown>> m_work; // by program file; each has a thread as long as it is here
    std::atomic<int> m_closing{0};               // windows whose programs have not answered
};
