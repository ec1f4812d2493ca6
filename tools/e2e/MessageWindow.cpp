#include "MessageWindow.h"

#include "ColorArea.h"

#include <QColor>

void MessageWindow::PressOk() const {
    // A message that has just come cannot be closed yet.
    WaitUntil([this] { return !IsThere(); }, std::chrono::milliseconds(1500));
    WaitUntil([this] {
        const auto window = m_desktop.Find(Title);
        if (!window)
            return false;
        QRect foot = window->place;
        foot.setTop(foot.bottom() - 80); // the text above it may have a frame of that colour
        const ColorArea button = FindColor(m_desktop.Screenshot(foot), QColor("#2456D6"));
        if (button.pixels < 1000)
            return false;
        m_desktop.Click(foot.topLeft() + button.bounds.center());
        return true;
    });
}
