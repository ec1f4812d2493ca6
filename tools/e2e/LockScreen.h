#pragma once

#include "RunningProduct.h"

#include <QColor>
#include <optional>

/// The screen lock, as a person sees it.
class LockScreen {
public:
    static constexpr char Title[] = "Screen lock";

    /// The look is the same in every theme.
    static const QColor Background, Accent, Surface;

    explicit LockScreen(const RunningProduct& product) : m_desktop(product.Screen()) {}

    /// Waits until the lock covers the whole screen, above everything else, and shows its message.
    bool Wait() const;
    /// Covers the whole screen, above everything else.
    bool IsWhole() const { return !Picture().isNull(); }
    bool WaitUntilGone() const { return m_desktop.WaitForNoWindow(Title); }

    /// Presses the button of the message and waits for the six boxes.
    bool OpenPasswordBoxes();
    /// Left edge of the box that has the focus; nothing while none has.
    std::optional<int> FocusedBox() const;

private:
    QImage Picture() const;
    bool ShowsMessage() const;

    Desktop& m_desktop;
};
