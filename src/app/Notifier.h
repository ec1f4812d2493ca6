#pragma once

#include "platform/application/NoticeKind.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QVector>
#include <functional>

class QSystemTrayIcon;
class QWidget;
class UToast;

/// Tells the user what has happened: with a toast in the window, or, while nobody sees that, in the tray.
/// What happens behind a lock is told when it has gone, and where there is no tray, when the window is seen
/// again. GUI thread.
class Notifier : public QObject {
public:
    Notifier(QWidget& window, QSystemTrayIcon& tray);

    /// `text` is plain text in the language in use; a press on the notice runs `action`.
    void Notify(NoticeKind kind, const QString& text, std::function<void()> action = {});

private:
    struct Notice {
        NoticeKind kind;
        QString text;
        std::function<void()> action;
    };

    bool IsWindowSeen() const;
    bool MustWait() const;
    void TellWaiting();

    QWidget& m_window;
    QSystemTrayIcon& m_tray;
    UToast* m_toast;
    QVector<Notice> m_waiting;
    std::function<void()> m_trayAction; // of the last notice in the tray
    QTimer m_later{this};
};
