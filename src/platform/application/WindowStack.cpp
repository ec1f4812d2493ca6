#include "platform/application/WindowStack.h"

#include "platform/system/SystemWindows.h"

#include <QEvent>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace {

constexpr int MessageLevel = 2; // what lies above it are locks

int Level(const QPointer<QWidget>& window) {
    return window ? window->property("TopLevel").toInt() : 0;
}

} // namespace

WindowStack::WindowStack() : WindowStack(SystemWindows::Native()) {}

WindowStack::WindowStack(const SystemWindows& system) : m_system(system) {}

WindowStack* WindowStack::Instance() {
    static WindowStack stack;
    return &stack;
}

void WindowStack::PushWindow(QWidget* window) {
    m_windows.erase(std::remove(m_windows.begin(), m_windows.end(), nullptr), m_windows.end());
    m_windows.emplace(m_windows.begin(), window); // above those of its own level
    std::stable_sort(m_windows.begin(), m_windows.end(),
                     [](const auto& a, const auto& b) { return Level(a) > Level(b); });
    window->installEventFilter(this);
}

QWidget* WindowStack::Highest() const {
    const auto shown = std::find_if(m_windows.begin(), m_windows.end(),
                                    [](const auto& window) { return window && window->isVisible(); });
    return shown == m_windows.end() ? nullptr : shown->data();
}

bool WindowStack::IsLocked() const {
    return Level(Highest()) > MessageLevel;
}

QWidget* WindowStack::NextAbove(const QWidget* window) const {
    QWidget* above = nullptr;
    for (const QPointer<QWidget>& other : m_windows) {
        if (other == window)
            return above;
        if (other && other->isVisible())
            above = other;
    }
    return nullptr;
}

void WindowStack::Restack() {
    const QWidget* above = nullptr;
    for (const QPointer<QWidget>& window : m_windows) {
        if (!window || !window->isVisible())
            continue;
        if (above)
            m_system.PlaceBelow(window->winId(), above->winId());
        else
            m_system.RaiseTopmost(window->winId());
        above = window;
    }
}

// When a lock goes, the next one below it has the keyboard at once; but a message never takes it.
void WindowStack::PassFocusOn() {
    QWidget* highest = std::exchange(m_focusIsFree, false) ? Highest() : nullptr;
    if (highest && Level(highest) != MessageLevel &&
        !highest->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus))
        m_system.Activate(*highest);
}

bool WindowStack::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Hide:
        m_focusIsFree = true;
        Q_FALLTHROUGH();
    case QEvent::Show:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate: // another program's window may have come above
    case QEvent::ZOrderChange:
        if (!std::exchange(m_restackPosted, true))
            QMetaObject::invokeMethod(
                this,
                [this] {
                    m_restackPosted = false;
                    Restack();
                    PassFocusOn();
                },
                Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
