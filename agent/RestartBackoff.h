#pragma once

#include <algorithm>
#include <chrono>
#include <utility>

/// Waiting times before a program that has ended is started again: none after a life of two seconds or
/// more; otherwise 1 s, doubling to 60 s with every short life in a row.
class RestartBackoff {
public:
    using Duration = std::chrono::milliseconds;
    static constexpr Duration ShortLife = std::chrono::seconds(2);
    static constexpr Duration First = std::chrono::seconds(1);
    static constexpr Duration Longest = std::chrono::seconds(60);

    /// The wait after a life of this length; `urgent`: never longer than the first.
    Duration Next(Duration lived, bool urgent = false) {
        if (lived < ShortLife && urgent)
            return First;
        if (lived < ShortLife)
            return std::exchange(m_next, std::min(m_next * 2, Longest));
        m_next = First;
        return Duration::zero();
    }

private:
    Duration m_next = First;
};
