#pragma once

#include <array>

#include <windows.h>

/// The hot keys of Sticky, Filter, Toggle and Mouse Keys and of High Contrast, whose questions would come
/// over a lock. Nothing is written to the user's profile. GUI thread.
class AccessibilityKeys {
public:
    using System = decltype(&SystemParametersInfoW);

    explicit AccessibilityKeys(System system = &SystemParametersInfoW) : m_system(system) {}
    ~AccessibilityKeys() { Restore(); }

    /// Does nothing while they are held off already.
    void HoldOff();
    void Restore();

private:
    /// Gives the feature the flags of its hot key and leaves all others; returns those it had.
    DWORD Exchange(std::size_t feature, DWORD flags) const;

    const System m_system;
    std::array<DWORD, 5> m_before{}; // the flags of each feature's hot key
    bool m_areHeldOff = false;
};
