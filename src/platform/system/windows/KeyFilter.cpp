#include "platform/system/windows/KeyFilter.h"

#include <windows.h>

namespace {

bool IsModifier(unsigned key) {
    switch (key) {
    case VK_CONTROL:
    case VK_LCONTROL:
    case VK_RCONTROL:
    case VK_MENU:
    case VK_LMENU:
    case VK_RMENU:
    case VK_LWIN:
    case VK_RWIN:
        return true;
    default:
        return false;
    }
}

bool IsAllowed(unsigned key) {
    switch (key) {
    case VK_BACK:
    case VK_TAB:
    case VK_RETURN:
    case VK_SPACE:
    case VK_ESCAPE:
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
    case VK_SHIFT:
    case VK_LSHIFT:
    case VK_RSHIFT:
    case VK_CAPITAL:
    case VK_NUMLOCK:
    case VK_SCROLL:
    case VK_VOLUME_MUTE:
    case VK_VOLUME_DOWN:
    case VK_VOLUME_UP:
    case VK_PACKET: // text of the on-screen keyboard
        return true;
    default:
        return (key >= '0' && key <= '9') || (key >= VK_NUMPAD0 && key <= VK_NUMPAD9);
    }
}

} // namespace

bool KeyFilter::Passes(unsigned key, bool pressed, bool modified) {
    if (IsModifier(key))
        m_modifiers.set(key, pressed);
    return !pressed || (IsAllowed(key) && !modified && m_modifiers.none());
}
