#include "EnrolPage.h"

#include "ColorArea.h"
#include "MainPage.h"

namespace {

constexpr int HeaderHeight = 77;
constexpr int MenuWidth = 240;
constexpr int ButtonRowHeight = 84;
constexpr int FilledPixels = 4000;     // of the button
constexpr QSize SmallestWords(80, 10); // on the button
constexpr int WordsPixels = 60;        // of a short sentence

} // namespace

const QColor EnrolPage::Accent("#2456D6");
const QColor EnrolPage::Danger("#C21F2F");

QRect EnrolPage::Window() const {
    const auto window = m_desktop.Find(MainPage::Title);
    return window ? window->place.intersected(QRect(QPoint(), m_desktop.Size())) : QRect();
}

QRect EnrolPage::Footer() const {
    QRect footer = Window();
    footer.setTop(footer.bottom() - ButtonRowHeight + 1);
    footer.setLeft(footer.left() + MenuWidth);
    return footer;
}

QRect EnrolPage::Button(const QColor& color) const {
    const QRect footer = Footer();
    if (footer.isEmpty() || IsCovered())
        return {};
    const ColorArea area = FindColor(m_desktop.Screenshot(footer), color);
    const QRect place = area.bounds;
    // One that waits has a border of that colour alone.
    const bool isButton = area.pixels > (color == Accent ? FilledPixels : WordsPixels) &&
                          place.width() >= SmallestWords.width() && place.height() >= SmallestWords.height();
    return isButton ? place.translated(footer.topLeft()) : QRect();
}

bool EnrolPage::Open() {
    ColorArea button;
    QRect words; // of the launcher; the picture beside them has the button's colour, too
    const bool isThere = WaitUntilSettled([&] {
        words = Window().adjusted(0, HeaderHeight, 0, 0);
        words.setWidth(words.width() / 2);
        button = words.isEmpty() ? ColorArea() : FindColor(m_desktop.Screenshot(words), Accent);
        return button.pixels > FilledPixels;
    });
    if (!isThere)
        return false;
    m_desktop.Click(button.bounds.center() + words.topLeft());
    return Wait(&EnrolPage::OffersAction);
}

void EnrolPage::Fill(const std::string& code, const std::string& account, const std::string& name,
                     bool agrees) {
    m_desktop.Type(code);
    m_desktop.Press("Tab");
    m_desktop.Type(account);
    m_desktop.Press("Tab");
    m_desktop.Type(name);
    for (int stop = 0; stop < 4; ++stop) // past the name's other form, the tags' field and its button
        m_desktop.Press("Tab");
    if (agrees)
        m_desktop.Press("space");
}

void EnrolPage::PressButton(int times) {
    QRect place;
    WaitUntilSettled([&] {
        place = Button(Accent).united(Button(Danger));
        return !place.isEmpty();
    });
    for (int click = 0; click < times; ++click)
        m_desktop.Click(place.center());
    m_desktop.MoveMouse(Window().topLeft()); // it has another colour below the mouse
}

bool EnrolPage::TellsFailure() const {
    QRect words = Footer();
    words.translate(0, -words.height()); // they stand above the row of the button
    return !IsCovered() && FindColor(m_desktop.Screenshot(words), Danger).pixels > WordsPixels;
}

bool EnrolPage::MarksAnswer() const {
    QRect form = Window();
    form.adjust(MenuWidth, HeaderHeight, 0, -2 * ButtonRowHeight);
    return FindColor(m_desktop.Screenshot(form), Danger).pixels > 10 * WordsPixels;
}

bool EnrolPage::IsCovered() const {
    const QRect window = Window();
    return !window.isEmpty() &&
           m_desktop.Screenshot(QRect(window.topLeft() + QPoint(4, 4), QSize(1, 1))).pixelColor(0, 0) !=
               QColor(Qt::white);
}
