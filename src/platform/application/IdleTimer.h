#pragma once

#include <QObject>
#include <QTimer>

class SystemInput;

/// Tells once when the user has not touched keyboard, mouse or screen for a while. GUI thread.
class IdleTimer : public QObject {
    Q_OBJECT

public:
    explicit IdleTimer(QObject* parent = nullptr);
    IdleTimer(const SystemInput& input, QObject* parent);

    /// Starts, or starts again: Timeout comes after `seconds` without user input, counted from now at
    /// the earliest.
    void Start(int seconds);
    void Stop();
    bool IsActive() const { return m_check.isActive(); }

signals:
    void Timeout();

private:
    void Check();

    const SystemInput& m_input;
    QTimer m_check{this};
    qint64 m_limitMs = 0;
};
