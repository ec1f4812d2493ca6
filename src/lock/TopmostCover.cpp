#include "lock/TopmostCover.h"

#include "platform/application/WindowStack.h"
#include "platform/system/SystemInput.h"
#include "platform/system/SystemWindows.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QVariant>
#include <QWidget>

namespace {

constexpr int LookAfterMs = 1000;

} // namespace

TopmostCover::TopmostCover(QWidget& window, Keyboard keyboard, const SystemWindows& windows,
                           const SystemInput& input)
    : QObject(&window),
      m_window(window),
      m_holdsKeyboard(keyboard == Keyboard::Hold),
      m_windows(windows),
      m_input(input),
      m_keeper(window, windows),
      m_covers(window.property("TopLevel").toInt() - 1, windows) {
    m_second.setObjectName(QStringLiteral("coverTimer"));
    m_second.setInterval(LookAfterMs);
    connect(&m_second, &QTimer::timeout, this, &TopmostCover::LookAfter);
    connect(&m_keeper, &WindowKeeper::Restored, this, [this] {
        HoldKeyboard(); // a window that was hidden has lost it
        FetchFocus();
    });
    connect(&m_keeper, &WindowKeeper::Lost, this, &TopmostCover::Lost);
    connect(&m_covers, &ScreenCovers::Lost, this, &TopmostCover::Lost);
    const auto coverScreens = [this] {
        if (m_keeper.IsKeeping())
            CoverScreens();
    };
    const auto watch = [this, coverScreens](QScreen* screen) {
        connect(screen, &QScreen::geometryChanged, this, coverScreens);
    };
    for (QScreen* screen : QGuiApplication::screens())
        watch(screen);
    connect(qApp, &QGuiApplication::screenAdded, this, [watch, coverScreens](QScreen* screen) {
        watch(screen);
        coverScreens();
    });
    connect(qApp, &QGuiApplication::screenRemoved, this, coverScreens);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, coverScreens);
    WindowStack::Instance()->PushWindow(&m_window);
    m_window.installEventFilter(this);
}

TopmostCover::~TopmostCover() {
    if (m_keeper.IsKeeping())
        Uncover();
}

void TopmostCover::ClosePopups() {
    // Each closing uncovers the one below; one that does not close would go on for ever.
    for (QWidget* last = nullptr; QWidget* popup = QApplication::activePopupWidget(); last = popup) {
        if (popup == last)
            popup->hide();
        else
            popup->close();
    }
}

void TopmostCover::Raise() {
    if (const QWidget* above = WindowStack::Instance()->NextAbove(&m_window))
        m_windows.PlaceBelow(m_window.winId(), above->winId());
    else
        m_windows.RaiseTopmost(m_window.winId());
}

void TopmostCover::Cover() {
    CoverScreens();
    if (WindowStack::Instance()->Highest() == &m_window)
        m_windows.Activate(m_window);
    m_second.start();
}

void TopmostCover::Release() {
    m_keeper.Release();
}

void TopmostCover::Uncover() {
    Release();
    m_second.stop();
    m_covers.Hide();
    if (m_holdsKeyboard)
        m_input.ReleaseKeyboard(*m_window.windowHandle());
}

void TopmostCover::CoverScreens() {
    QVector<QRect> places = m_windows.ScreenPlaces();
    m_keeper.Keep(places.takeFirst());
    m_covers.Show(places);
    Raise();
    HoldKeyboard();
}

void TopmostCover::HoldKeyboard() {
    if (m_holdsKeyboard)
        m_input.HoldKeyboard(*m_window.windowHandle());
}

// Only the highest window fetches it: two that both did would take it from each other for ever.
void TopmostCover::FetchFocus() {
    if (m_window.isVisible() && !m_window.isActiveWindow() && WindowStack::Instance()->Highest() == &m_window)
        m_windows.Activate(m_window);
}

void TopmostCover::LookAfter() {
    ClosePopups();
    WindowStack::Instance()->Restack();
    m_keeper.Check();
    m_covers.Check();
    HoldKeyboard();
    FetchFocus();
}

bool TopmostCover::eventFilter(QObject* watched, QEvent* event) {
    // Qt takes a window for minimised on anybody's word, and would hide what is in it.
    if (event->type() == QEvent::WindowStateChange && m_keeper.IsKeeping() && m_window.isMinimized()) {
        m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
        m_keeper.Check();
        return true;
    }
    if (event->type() == QEvent::ActivationChange && m_keeper.IsKeeping()) {
        // Another program took the focus: fetch it back, and with it the keyboard that could switch windows.
        if (m_window.isActiveWindow())
            HoldKeyboard();
        else
            QTimer::singleShot(0, this, &TopmostCover::FetchFocus);
    }
    return QObject::eventFilter(watched, event);
}
