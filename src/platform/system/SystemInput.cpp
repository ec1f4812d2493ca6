#include "platform/system/SystemInput.h"

#include <algorithm>

void SystemInput::HoldKeyboard(QWindow& window) const {
    m_holders.erase(std::remove(m_holders.begin(), m_holders.end(), nullptr), m_holders.end());
    if (std::find(m_holders.begin(), m_holders.end(), &window) == m_holders.end())
        m_holders.emplace_back(&window);
    TakeKeyboard(*m_holders.back());
}

void SystemInput::ReleaseKeyboard(QWindow& window) const {
    const auto held = std::find(m_holders.begin(), m_holders.end(), &window);
    if (held == m_holders.end())
        return;
    const bool hadKeyboard = held + 1 == m_holders.end();
    m_holders.erase(held);
    if (!hadKeyboard)
        return;
    FreeKeyboard(window);
    if (!m_holders.empty() && m_holders.back())
        TakeKeyboard(*m_holders.back());
}
