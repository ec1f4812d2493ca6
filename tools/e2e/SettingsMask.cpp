#include "SettingsMask.h"

#include "ColorArea.h"
#include "LockScreen.h"

namespace {

const QColor Border("#5B7691"); // of boxes without the focus
constexpr int KeyDistanceX = 100;
constexpr int KeyDistanceY = 68;
constexpr int UsablePixels = 60000; // of boxes and keys in use; of those out of use the borders are left

} // namespace

/// The screen, if it shows nothing but the mask; otherwise a null picture.
QImage SettingsMask::Picture() const {
    const auto mask = m_desktop.Find(Title);
    if (!mask || mask->place != QRect(QPoint(0, 0), m_desktop.Size()) || m_desktop.TopmostTitle() != Title)
        return {};
    const QImage picture = m_desktop.Screenshot();
    return picture.pixel(0, 0) == LockScreen::Background.rgb() ? picture : QImage();
}

bool SettingsMask::Wait() {
    return WaitUntilSettled([this] { return TakesDigits(); });
}

bool SettingsMask::TakesDigits() {
    const QImage picture = Picture();
    const ColorArea usable = FindColor(picture, LockScreen::Surface);
    const QRect boxes = FindColor(picture, Border).bounds;
    if (usable.pixels < UsablePixels || boxes.isEmpty())
        return false;
    m_boxes = boxes.adjusted(-KeyDistanceX, 0, KeyDistanceX, 0); // the one with the focus has another border
    m_one = usable.bounds.topRight() + QPoint(-KeyDistanceX * 5 / 2, KeyDistanceY / 2);
    return HasFocusInBoxes(picture);
}

bool SettingsMask::HasFocusInBoxes(const QImage& picture) const {
    return FindColor(picture.copy(m_boxes), LockScreen::Accent).pixels > 300;
}

bool SettingsMask::WaitUntilFilled() const {
    return WaitUntil([this] {
        const QImage picture = Picture();
        return !picture.isNull() && !HasFocusInBoxes(picture);
    });
}

bool SettingsMask::IsLockedOut() const {
    const QImage picture = Picture();
    return !picture.isNull() && FindColor(picture, LockScreen::Surface).pixels < UsablePixels;
}

void SettingsMask::Touch(int digit) {
    m_desktop.Click(m_one + QPoint((digit - 1) % 3 * KeyDistanceX, (digit - 1) / 3 * KeyDistanceY));
}
