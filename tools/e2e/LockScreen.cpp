#include "LockScreen.h"

#include "ColorArea.h"

const QColor LockScreen::Background("#1B2A3A");
const QColor LockScreen::Accent("#7CA8FF");
const QColor LockScreen::Surface("#26394D");

/// The screen, if it shows nothing but the lock; otherwise a null picture.
QImage LockScreen::Picture() const {
    const QRect screen(QPoint(0, 0), m_desktop.Size());
    const auto lock = m_desktop.Find(Title);
    // Exactly: no pixel of the screen is open, and none beside it is covered.
    if (!lock || lock->place != screen || m_desktop.TopmostTitle() != Title)
        return {};
    QImage picture = m_desktop.Screenshot();
    for (const QPoint& corner :
         {screen.topLeft(), screen.topRight(), screen.bottomLeft(), screen.bottomRight()})
        if (picture.pixel(corner) != Background.rgb())
            return {};
    return picture;
}

bool LockScreen::ShowsMessage() const {
    const QImage picture = Picture();
    return FindColor(picture, Accent).pixels > 3000 && FindColor(picture, Surface).pixels < 100;
}

bool LockScreen::Wait() const {
    return WaitUntil([this] { return ShowsMessage(); });
}

bool LockScreen::OpenPasswordBoxes() {
    if (!WaitUntilSettled([this] { return ShowsMessage(); }))
        return false;
    m_desktop.Click(FindColor(Picture(), Accent).bounds.center());
    return WaitUntil([this] { return FocusedBox().has_value(); });
}

std::optional<int> LockScreen::FocusedBox() const {
    const QImage picture = Picture();
    const ColorArea border = FindColor(picture, Accent);
    if (FindColor(picture, Surface).pixels < 20000 || border.pixels < 100)
        return std::nullopt;
    return border.bounds.left();
}
