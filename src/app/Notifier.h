#pragma once

#include "platform/application/NoticeKind.h"

#include <QObject>
#include <QPair>
#include <QString>
#include <QTimer>
#include <QVector>

class QSystemTrayIcon;
class QWidget;
class UToast;

/// Tells the user what has happened: with a toast in the window, or, while nobody sees that, in the tray.
/// What happens behind a lock is told when it has gone. GUI thread.
class Notifier : public QObject {
public:
    Notifier(QWidget& window, QSystemTrayIcon& tray);

    /// `text` is plain text in the language in use.
    void Notify(NoticeKind kind, const QString& text);

private:
    void TellWaiting();

    QWidget& m_window;
    QSystemTrayIcon& m_tray;
    UToast* m_toast;
    QVector<QPair<NoticeKind, QString>> m_waiting;
    QTimer m_later{this};
};
