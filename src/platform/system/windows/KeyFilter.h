#pragma once

#include <bitset>

/// Which keys go on to the windows while the keyboard is held: those that a lock's pad takes, and none that
/// the system or another program acts on. Any one thread.
class KeyFilter {
public:
    /// Whether the event of the virtual key `key` goes on. Releases always do: a key that was held down
    /// before would otherwise never come up. `modified`: the system sees Ctrl, Alt or a Windows key held
    /// down; it does not see those whose press was kept from it, so the filter remembers them.
    bool Passes(unsigned key, bool pressed, bool modified);

    /// Keys may have come up where the filter could not see it.
    void ForgetModifiers() { m_modifiers.reset(); }

private:
    std::bitset<256> m_modifiers; // those that are held down
};
