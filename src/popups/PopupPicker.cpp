#include "popups/PopupPicker.h"

#include "platform/application/WindowStack.h"
#include "platform/system/SystemWindows.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <algorithm>
#include <utility>

namespace {

constexpr int RepaintMs = 300;

} // namespace

PopupPicker::PopupPicker(PopupSystem system, PopupReport::Upload upload, QObject* parent)
    : QObject(parent), m_system(system), m_upload(std::move(upload)) {
    m_opening.setSingleShot(true);
    m_opening.setInterval(RepaintMs);
    connect(&m_opening, &QTimer::timeout, this, &PopupPicker::Open);
    // Masks that do not fit any more are made anew, and what was picked is dropped.
    const auto showAgain = [this] {
        if (IsOpen() && !m_opening.isActive())
            ShowMasks();
    };
    const auto watch = [this, showAgain](QScreen* screen) {
        connect(screen, &QScreen::geometryChanged, this, showAgain);
    };
    for (QScreen* screen : QGuiApplication::screens())
        watch(screen);
    connect(qApp, &QGuiApplication::screenAdded, this, [watch, showAgain](QScreen* screen) {
        watch(screen);
        showAgain();
    });
    connect(qApp, &QGuiApplication::screenRemoved, this, showAgain);
    qApp->installEventFilter(this);
}

PopupPicker::~PopupPicker() = default;

bool PopupPicker::IsOpen() const {
    return m_opening.isActive() ||
           std::any_of(m_masks.begin(), m_masks.end(), [](const auto& mask) { return mask->isVisible(); });
}

bool PopupPicker::Start(QWidget* aside, const std::optional<PickableWindow>& picked) {
    if (std::any_of(m_masks.begin(), m_masks.end(), [](const auto& mask) { return mask->IsReporting(); }))
        return false;
    m_aside = aside;
    m_picked = picked;
    if (!aside) {
        Open();
        return true;
    }
    m_asideGeometry = aside->saveGeometry();
    aside->hide();
    m_opening.start(); // what was covered has yet to be painted
    return true;
}

void PopupPicker::Open() {
    ShowMasks();
    if (!m_picked)
        return;
    const auto holds = [&](const auto& mask) { return mask->Place().contains(m_picked->place.center()); };
    const auto found = std::find_if(m_masks.begin(), m_masks.end(), holds);
    UPopupBlockMask& mask = found == m_masks.end() ? *m_masks.front() : **found;
    SystemWindows::Native().Activate(mask);
    mask.Pick(*m_picked);
}

void PopupPicker::ShowMasks() {
    m_masks.clear();
    for (const QScreen* screen : QGuiApplication::screens()) {
        auto mask = std::make_unique<UPopupBlockMask>(*screen, m_system, m_upload);
        connect(mask.get(), &UPopupBlockMask::Cancelled, this, &PopupPicker::Close);
        connect(mask.get(), &UPopupBlockMask::Reporting, this, &PopupPicker::Close);
        connect(mask.get(), &UPopupBlockMask::Picked, this, [this, picking = mask.get()] {
            for (const auto& other : m_masks)
                if (other.get() != picking)
                    other->Reset();
        });
        m_masks.push_back(std::move(mask));
    }
    // All pictures of the desktop are taken before anything covers it.
    for (const auto& mask : m_masks)
        mask->show();
    SystemWindows::Native().Activate(*m_masks.front()); // Escape is for them
}

void PopupPicker::Close() {
    if (!IsOpen())
        return;
    m_opening.stop();
    for (const auto& mask : m_masks)
        mask->hide();
    if (!m_aside)
        return;
    m_aside->restoreGeometry(m_asideGeometry); // some window managers would place it anew
    const bool isCovered = WindowStack::Instance()->Highest();
    m_aside->setAttribute(Qt::WA_ShowWithoutActivating, isCovered);
    m_aside->show();
    m_aside->setAttribute(Qt::WA_ShowWithoutActivating, false);
    if (!isCovered)
        m_aside->activateWindow();
}

std::vector<PickableWindow> PopupPicker::Windows() const {
    std::vector<PickableWindow> windows;
    const QVector<QRect> screens = SystemWindows::Native().ScreenPlaces();
    for (const WId id : PickableWindow::Candidates(m_system, 0)) {
        const std::optional<PickableWindow> window = PickableWindow::Read(m_system, id);
        const auto shows = [&](const QRect& screen) { return screen.intersects(window->place); };
        if (window && !screens.contains(window->place) &&
            std::any_of(screens.begin(), screens.end(), shows) &&
            !window->IsRefused({}, OwnPublisher::Configured(),
                               static_cast<quint32>(QCoreApplication::applicationPid())))
            windows.push_back(*window);
    }
    return windows;
}

bool PopupPicker::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
        IsOpen()) {
        Close();
        return true;
    }
    // What has a higher level must not find the masks under it when it goes.
    if (event->type() == QEvent::Show && watched->property("TopLevel").toInt() > UPopupBlockMask::Level)
        Close();
    return QObject::eventFilter(watched, event);
}
