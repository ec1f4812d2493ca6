#pragma once

#include "platform/application/NoticeKind.h"

#include <QFrame>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <functional>

class NoticeQueue;
class QLabel;
class UIconLabel;

/// A short message at the lower edge of a window that goes away by itself.
///
///     toast->SetMessage(tr("..."));
///     toast->show();
///
/// The toasts of a window never cover each other: show() shows the message at once when none is on screen,
/// else when those before it are gone; one that is on screen or waits is not told twice. Screen readers
/// announce it as it appears, and it never has the focus.
class UToast : public QFrame {
    Q_OBJECT

public:
    using Kind = NoticeKind;

    /// What show() does while an earlier message of this same toast is on screen or waits for it.
    enum class WhenBusy { Queue, Replace };

    /// The toast appears in the window that `parent` is in when it is shown.
    explicit UToast(QWidget* parent, WhenBusy whenBusy = WhenBusy::Queue);
    ~UToast() override;

    /// The message of the next show(). Plain text.
    void SetMessage(const QString& message) { m_next.message = message; }
    /// The sign before the message of the next show(); Info at first.
    void SetKind(Kind kind) { m_next.kind = kind; }

    /// What a press on the message of the next show() does, which goes away then; nothing at first.
    void SetAction(std::function<void()> action) { m_next.action = std::move(action); }

    /// Makes it a window of its own, without the focus and above those of other programs, at the lower edge
    /// of `area` of the screen, in Qt's pixels: for messages while no window of the program is to be seen.
    void StandOnScreen(const QRect& area);

    /// How long each message stays, in milliseconds; 0, as at first, leaves time to read it.
    void SetDuration(int milliseconds) { m_duration = milliseconds; }

    /// The message on screen; empty when there is none.
    QString ShownMessage() const;

    void setVisible(bool visible) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Notice {
        QString message;
        Kind kind = Kind::Info;
        std::function<void()> action = {};
    };

    void Request();
    void Present(const Notice& notice);
    void Place();

    WhenBusy m_whenBusy;
    Notice m_next;
    QStringList m_waiting; // messages
    int m_duration = 0;
    QRect m_area;                    // of the screen; null while it is part of a window
    std::function<void()> m_onPress; // of the message on screen
    QPointer<QWidget> m_owner;
    QPointer<NoticeQueue> m_queue;
    UIconLabel* m_icon;
    QLabel* m_text;
    QTimer m_gone;
};
