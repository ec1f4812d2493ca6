#pragma once

#include <array>

/// The hot keys of Sticky, Filter, Toggle and Mouse Keys and of High Contrast, whose questions would come
/// over a lock. Nothing is written to the user's profile. GUI thread.
class AccessibilityKeys {
public:
    ~AccessibilityKeys() { Restore(); }

    /// Does nothing while they are held off already.
    void HoldOff();
    void Restore();

private:
    std::array<unsigned long, 5> m_before{}; // the flags of each feature's hot key
    bool m_areHeldOff = false;
};
