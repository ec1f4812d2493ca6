#include "app/Notifier.h"

#include "platform/application/WindowStack.h"
#include "platform/security/LogText.h"
#include "widgets/UToast.h"

#include <QSystemTrayIcon>
#include <QWidget>
#include <glog/logging.h>
#include <utility>

namespace {

constexpr int LookAgainMs = 1000;

} // namespace

Notifier::Notifier(QWidget& window, QSystemTrayIcon& tray)
    : QObject(&window), m_window(window), m_tray(tray), m_toast(new UToast(&window)) {
    m_later.setObjectName(QStringLiteral("waitingNoticesTimer"));
    m_later.setInterval(LookAgainMs);
    connect(&m_later, &QTimer::timeout, this, &Notifier::TellWaiting);
    connect(&m_tray, &QSystemTrayIcon::messageClicked, this, [this] {
        if (const auto action = std::exchange(m_trayAction, {}))
            action();
    });
}

// A toast in a window that nobody sees would be gone before it is read.
bool Notifier::IsWindowSeen() const {
    return m_window.isVisible() && !m_window.isMinimized();
}

bool Notifier::MustWait() const {
    return WindowStack::Instance()->IsLocked() ||
           (!IsWindowSeen() && !QSystemTrayIcon::isSystemTrayAvailable());
}

void Notifier::TellWaiting() {
    if (MustWait())
        return;
    m_later.stop();
    for (const Notice& notice : std::exchange(m_waiting, {}))
        Notify(notice.kind, notice.text, notice.action);
}

void Notifier::Notify(NoticeKind kind, const QString& text, std::function<void()> action) {
    if (MustWait()) {
        LOG(INFO) << "Notifier::Notify later: " << LogText(text);
        m_waiting.append({kind, text, std::move(action)});
        m_later.start();
        return;
    }
    if (!IsWindowSeen()) {
        LOG(INFO) << "Notifier::Notify in the tray: " << LogText(text);
        m_trayAction = std::move(action);
        m_tray.showMessage(m_window.windowTitle(), text, m_window.windowIcon());
        return;
    }
    m_toast->SetKind(kind);
    m_toast->SetMessage(text);
    m_toast->SetAction(std::move(action));
    m_toast->show();
}
