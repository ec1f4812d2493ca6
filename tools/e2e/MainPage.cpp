#include "MainPage.h"

#include "ColorArea.h"

const QColor MainPage::Connected("#1A7F37");
const QColor MainPage::Connecting("#9A6700");
const QColor MainPage::Disconnected("#CF222E");
const QColor MainPage::NotEnrolled("#57606A");

bool MainPage::ShowsStatus(const QColor& color) const {
    constexpr int headerHeight = 100;
    constexpr int dotPixels = 100;
    const auto window = m_desktop.Find(Title);
    if (!window)
        return false;
    QRect header = window->place;
    header.setHeight(headerHeight);
    return FindColor(m_desktop.Screenshot().copy(header), color).pixels >= dotPixels;
}

bool MainPage::WaitForStatus(const QColor& color) const {
    return WaitUntil([&] { return ShowsStatus(color); });
}
