#pragma once

#include "RunningProduct.h"

/// The window of the administrator's messages, as a person sees it in the light theme.
class MessageWindow {
public:
    static constexpr char Title[] = "Message from your administrator";
    static constexpr char Emergency[] = "Emergency";
    static constexpr char List[] = "Messages";

    explicit MessageWindow(const RunningProduct& product) : m_desktop(product.Screen()) {}

    bool Wait() const { return m_desktop.WaitForWindow(Title); }
    bool WaitUntilGone() const { return m_desktop.WaitForNoWindow(Title); }
    bool IsThere() const { return m_desktop.Find(Title).has_value(); }
    /// Presses the button at its end.
    void PressOk() const;

private:
    Desktop& m_desktop;
};
