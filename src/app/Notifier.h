#pragma once

#include "platform/application/NoticeKind.h"

#include <QString>

class QSystemTrayIcon;
class QWidget;
class UToast;

/// Tells the user what has happened: with a toast in the window, or, while nobody sees that, in the tray.
/// GUI thread.
class Notifier {
public:
    Notifier(QWidget& window, QSystemTrayIcon& tray);

    /// `text` is plain text in the language in use.
    void Notify(NoticeKind kind, const QString& text);

private:
    QWidget& m_window;
    QSystemTrayIcon& m_tray;
    UToast* m_toast;
};
