#include "app/Notifier.h"

#include "widgets/UToast.h"

#include <QSystemTrayIcon>
#include <QWidget>

Notifier::Notifier(QWidget& window, QSystemTrayIcon& tray)
    : m_window(window), m_tray(tray), m_toast(new UToast(&window)) {}

void Notifier::Notify(NoticeKind kind, const QString& text) {
    // A toast in a window that nobody sees would be gone before it is read.
    if (!m_window.isVisible() || m_window.isMinimized()) {
        m_tray.showMessage(m_window.windowTitle(), text, m_window.windowIcon());
        return;
    }
    m_toast->SetKind(kind);
    m_toast->SetMessage(text);
    m_toast->show();
}
