#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>
#include <functional>

class QWidget;

/// The notices of one kind in one window: they come to the screen one after the other, in the order in which
/// they were asked for. GUI thread.
class NoticeQueue : public QObject {
public:
    /// The queue of `kind` in `window`, which owns it.
    static NoticeQueue* Of(QWidget* window, const QString& kind);

    /// Calls `present` at once or as soon as everything before it is over.
    void Add(QWidget* notice, std::function<void()> present);

    /// The notice on screen is over, and the next may come. Does nothing for any other notice.
    void Finish(QWidget* notice);

    /// Takes back what of `notice` still waits.
    void Withdraw(const QObject* notice);

    bool IsWaiting(const QWidget* notice) const;

private:
    struct Entry {
        QPointer<QWidget> notice;
        std::function<void()> present;
    };

    explicit NoticeQueue(QWidget* window);
    void PresentNext();
    void Forget(const QObject* notice);

    QVector<Entry> m_waiting;
    QPointer<QWidget> m_current;
};
