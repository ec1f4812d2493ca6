#pragma once

#include "platform/application/Clock.h"

#include <cstdint>

/// How often a dialog may be tried to be opened with a wrong password: from the fifth wrong attempt on a
/// clock runs, and for a minute the next look finds the dialog locked. Counts in whole seconds. Attempts
/// and clock outlive right passwords and hidden dialogs; only a served minute resets them.
class PasswordAttempts {
public:
    static constexpr std::int32_t FreeAttempts = 4;
    static constexpr std::int64_t LockOutSeconds = 60;

    /// What a look at the attempts means for the dialog.
    enum class Verdict {
        Free,      ///< too few wrong attempts to matter
        Counting,  ///< the clock has been started just now, or not yet; nothing changes for the user
        LockedOut, ///< no input
        Released,  ///< a lock-out is over: everything begins anew
    };

    explicit PasswordAttempts(const Clock& clock) : m_clock(clock) {}

    /// Looks at the attempts, after a wrong one or because the dialog is shown or its timer has run.
    Verdict Check(bool wrongAttempt);

    /// Whether the last look found a lock-out.
    bool IsLockedOut() const { return m_lockedOut; }

private:
    const Clock& m_clock;
    std::int32_t m_wrong = 0;
    std::int64_t m_start = 0; // seconds since 1970; 0: no lock-out has begun
    bool m_lockedOut = false;
};
