#pragma once

#include <QBasicTimer>
#include <QIcon>
#include <QString>
#include <memory>

class QObject;
class QPainter;
class QRectF;

/// What turns while something loads: an arc in a theme colour, or a picture. The owner starts the timer on
/// itself, hands each of its ticks on, and repaints. GUI thread.
class Spinner {
public:
    explicit Spinner(const QString& colorToken);

    void SetColorToken(const QString& token) { m_state->colorToken = token; }
    /// A picture file to turn instead of the arc; an empty path means the arc.
    void SetPicture(const QString& path) { m_state->picture = QIcon(path); }

    void Start(QObject* owner);
    void Stop();
    bool IsTurning() const { return m_timer.isActive(); }

    /// True when the timer event was the spinner's own tick; the angle has then moved on.
    bool Tick(int timerId);

    void Paint(QPainter& painter, const QRectF& rect) const;

    /// An icon that shows the spinner as it stands whenever it is painted.
    QIcon Icon() const;

private:
    struct State {
        QString colorToken;
        QIcon picture;
        int degrees = 0;
    };
    class Engine;
    static void Paint(const State& state, QPainter& painter, const QRectF& rect);

    std::shared_ptr<State> m_state;
    QBasicTimer m_timer;
};
