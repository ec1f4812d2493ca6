#include "platform/application/WindowStack.h"

#include "platform/system/SystemDesktop.h"

#include <QEvent>
#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace {

int Level(const QPointer<QWidget>& window) {
    return window ? window->property("TopLevel").toInt() : 0;
}

} // namespace

WindowStack::WindowStack() : WindowStack(SystemDesktop::Native()) {}

WindowStack::WindowStack(const SystemDesktop& desktop) : m_desktop(desktop) {}

WindowStack* WindowStack::Instance() {
    static WindowStack stack;
    return &stack;
}

void WindowStack::PushWindow(QWidget* window) {
    m_windows.erase(std::remove(m_windows.begin(), m_windows.end(), nullptr), m_windows.end());
    m_windows.emplace_back(window);
    std::stable_sort(m_windows.begin(), m_windows.end(),
                     [](const auto& a, const auto& b) { return Level(a) < Level(b); });
    window->installEventFilter(this);
}

void WindowStack::Restack() {
    for (const QPointer<QWidget>& window : m_windows)
        if (window && window->isVisible())
            m_desktop.RaiseTopmost(window->winId());
}

bool WindowStack::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
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
                },
                Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
