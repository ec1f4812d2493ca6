#include "StatusPages.h"

#include "ColorArea.h"
#include "MainPage.h"

#include <algorithm>

namespace {

const QColor Warnings[] = {QColor("#8A5A00"), QColor("#FFCF66")}; // on the page, and in a notice
constexpr int AboutFromBottom = 97;
constexpr int FirstOfDot = 190; // the menu is as wide as its words
constexpr int BesideDot = 216;
constexpr int MenuWidth = 245;
constexpr int HeaderHeight = 77;
constexpr int SignPixels = 20;

} // namespace

QRect StatusPages::Window() const {
    const auto window = m_desktop.Find(MainPage::Title);
    return window ? window->place.intersected(QRect(QPoint(), m_desktop.Size())) : QRect();
}

void StatusPages::Click(const QPoint& place) const {
    WaitUntilSettled([this] { return !IsCovered(); });
    m_desktop.Click(Window().topLeft() + place);
}

void StatusPages::OpenAbout() const {
    Click({MenuMiddle, Window().height() - AboutFromBottom});
}

void StatusPages::Press(int stops, int times) const {
    for (int stop = 0; stop < stops; ++stop)
        m_desktop.Press("Tab");
    for (int time = 0; time < times; ++time)
        m_desktop.Press("space");
}

bool StatusPages::HasDot() const {
    const QPoint row = Window().bottomLeft() - QPoint(0, AboutFromBottom);
    const QImage pixels = m_desktop.Screenshot(QRect(row, QSize(BesideDot + 1, 1)));
    int column = FirstOfDot;
    while (pixels.pixel(column, 0) == pixels.pixel(BesideDot, 0) && column < BesideDot)
        ++column;
    return column < BesideDot;
}

bool StatusPages::Warns() const {
    const QRect page = Window().adjusted(MenuWidth, HeaderHeight, 0, 0);
    const QImage picture = m_desktop.Screenshot(page);
    return std::any_of(std::begin(Warnings), std::end(Warnings),
                       [&](const QColor& color) { return FindColor(picture, color).pixels > SignPixels; });
}

bool StatusPages::IsCovered() const {
    const QRect window = Window();
    return window.isEmpty() ||
           m_desktop.Screenshot(QRect(window.topLeft() + QPoint(4, 4), QSize(1, 1))).pixelColor(0, 0) !=
               QColor(Qt::white);
}

QImage StatusPages::LowerMenu() const {
    QRect part = Window();
    part.setTop(part.bottom() - 130);
    part.setWidth(MenuWidth - 60); // without the dot
    return m_desktop.Screenshot(part);
}
