#include "lock/WindowKeeper.h"

#include "platform/application/WindowStack.h"
#include "platform/context/Theme.h"
#include "platform/system/SystemWindows.h"

#include <QWidget>
#include <glog/logging.h>

namespace {

constexpr int MostChangesBetweenChecks = 500;
constexpr int RestMs = 20;

} // namespace

WindowKeeper::WindowKeeper(QWidget& window, const SystemWindows& system)
    : m_window(window), m_system(system) {
    m_rests.setSingleShot(true);
    m_rests.setInterval(RestMs);
    connect(&m_rests, &QTimer::timeout, this, &WindowKeeper::Compare);
    m_system.PrepareCover(m_window, Theme::Instance()->Color(QStringLiteral("lockBackground")));
}

WindowKeeper::~WindowKeeper() {
    Release();
}

void WindowKeeper::Keep(const QRect& place) {
    m_place = place;
    m_keeps = true;
    m_told = false;
    const qreal scale = m_window.devicePixelRatioF();
    m_window.setGeometry(QRect(place.topLeft(), place.size() / scale));
    m_system.Guard(m_window.winId(), place, [this] { OnChanged(); });
    Restore();
}

void WindowKeeper::Release() {
    if (!m_keeps)
        return;
    m_keeps = false;
    m_system.Unguard(m_window.winId());
}

void WindowKeeper::Check() {
    m_changes = 0;
    Compare();
}

// A program that changes the window again and again must not keep this one from everything else.
void WindowKeeper::OnChanged() {
    if (++m_changes <= MostChangesBetweenChecks)
        Compare();
    else if (!m_rests.isActive())
        m_rests.start();
}

void WindowKeeper::Compare() {
    if (!m_keeps || !m_window.isVisible())
        return;
    const std::optional<SystemWindows::Facts> facts = m_system.FactsOf(m_window.winId());
    if (!facts) {
        emit Lost();
        return;
    }
    if (!facts->place.isValid())
        return; // the system cannot tell
    SystemWindows::Facts wanted;
    wanted.place = m_place;
    if (*facts == wanted)
        return;
    if (!m_told)
        LOG(WARNING) << "WindowKeeper::Check another program changes \""
                     << m_window.objectName().toStdString() << "\"; it is restored, whenever that happens";
    m_told = true;
    Restore();
    emit Restored();
}

// Not above what has a higher level, not even for a moment.
void WindowKeeper::Restore() {
    const QWidget* above = WindowStack::Instance()->NextAbove(&m_window);
    m_system.Restore(m_window.winId(), m_place, above ? above->winId() : 0);
}
