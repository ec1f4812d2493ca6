#include "PopupsPage.h"

#include "ColorArea.h"
#include "MainPage.h"

namespace {

const QColor Accent("#2456D6");
const QColor Warning("#8A5A00");
constexpr QPoint MenuEntry(120, 178);
constexpr QRect PickButton(320, 530, 170, 140); // the part of the page where it stands
constexpr int ButtonPixels = 2000;
constexpr int FilledPixels = 5500; // of the button and the frame around a small window
constexpr int SignPixels = 30;

} // namespace

// The masks and the main window have one title, but not one size.
bool PopupsPage::IsPicking() const {
    const auto top = m_desktop.Find(MainPage::Title);
    return top && top->place == QRect(QPoint(), m_desktop.Size());
}

int PopupsPage::Pixels(const QColor& color) const {
    return FindColor(m_desktop.Screenshot(), color).pixels;
}

bool PopupsPage::OpenPicker() {
    const auto window = m_desktop.Find(MainPage::Title);
    if (!window)
        return false;
    m_desktop.Click(window->place.topLeft() + MenuEntry); // another window may have the focus
    const QRect part = PickButton.translated(window->place.topLeft());
    ColorArea button;
    const auto isThere = [&] {
        button = FindColor(m_desktop.Screenshot(part), Accent);
        return button.pixels > ButtonPixels;
    };
    if (!WaitUntilSettled(isThere))
        return false;
    m_desktop.Click(part.topLeft() + button.bounds.center());
    return WaitUntil([this] { return IsPicking(); });
}

bool PopupsPage::OffersReport() const {
    return IsPicking() && Pixels(Accent) > FilledPixels && !Refuses();
}

bool PopupsPage::Refuses() const {
    return IsPicking() && Pixels(Warning) > SignPixels;
}

bool PopupsPage::Report() {
    if (!WaitUntil([this] { return OffersReport(); }))
        return false;
    m_desktop.Press("space"); // the button has the focus
    return WaitUntil([this] { return !IsPicking(); });
}
