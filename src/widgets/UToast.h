#pragma once

#include "platform/application/NoticeKind.h"

#include <QFrame>
#include <QPointer>
#include <QTimer>

class NoticeQueue;
class QLabel;
class UIconLabel;

/// A short message at the lower edge of a window that goes away by itself.
///
///     toast->SetMessage(tr("..."));
///     toast->show();
///
/// The toasts of a window never cover each other: show() shows the message at once when none is on screen,
/// else when those before it are gone. Screen readers announce it as it appears.
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

    /// How long each message stays, in milliseconds; 0, as at first, leaves time to read it.
    void SetDuration(int milliseconds) { m_duration = milliseconds; }

    /// The message on screen; empty when there is none.
    QString ShownMessage() const;

    void setVisible(bool visible) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Notice {
        QString message;
        Kind kind = Kind::Info;
    };

    void Request();
    void Present(const Notice& notice);
    void Place();

    WhenBusy m_whenBusy;
    Notice m_next;
    int m_duration = 0;
    QPointer<QWidget> m_owner;
    QPointer<NoticeQueue> m_queue;
    UIconLabel* m_icon;
    QLabel* m_text;
    QTimer m_gone;
};
