#pragma once

#include "RunningProduct.h"

#include <QRect>

/// The mask over locked settings, as a person sees it.
class SettingsMask {
public:
    static constexpr char Title[] = "Settings are locked";

    explicit SettingsMask(const RunningProduct& product) : m_desktop(product.Screen()) {}

    /// Waits until the mask covers the whole screen, above everything else, and takes digits.
    bool Wait();
    bool WaitUntilGone() const { return m_desktop.WaitForNoWindow(Title); }

    /// Whether it is there and its boxes and digit keys are out of use.
    bool IsLockedOut() const;

    /// Waits until the last digit has led to the OK button.
    bool WaitUntilFilled() const;

    /// Touches where the digit key stood when the mask took digits.
    void Touch(int digit);

private:
    bool TakesDigits();
    QImage Picture() const;
    bool HasFocusInBoxes(const QImage& picture) const;

    Desktop& m_desktop;
    QRect m_boxes;
    QPoint m_one; // the key of the digit 1
};
