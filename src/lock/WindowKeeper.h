#pragma once

#include <QObject>
#include <QRect>
#include <QTimer>

class QWidget;
class SystemWindows;

/// Keeps one window as a cover must be, whatever another program does to it: on screen, whole, enabled,
/// topmost and exactly at its place. What the system asks about is refused, what it tells is undone at once,
/// and everything else at the next Check. GUI thread.
class WindowKeeper : public QObject {
    Q_OBJECT

public:
    /// `window` is a top-level window, and must not outlive its keeper.
    WindowKeeper(QWidget& window, const SystemWindows& system);
    ~WindowKeeper() override;

    /// From now on the window, which is about to be shown, is kept at `place`, in physical pixels.
    void Keep(const QRect& place);
    /// The window may be hidden.
    void Release();

    /// Compares what the window is with what it must be, and restores it if there is a difference. To be
    /// called each second.
    void Check();

    bool IsKeeping() const { return m_keeps; }
    const QRect& Place() const { return m_place; }

signals:
    /// The window was not as it must be, and is again.
    void Restored();
    /// The window is not there any more, and with it everything that it covered is open.
    void Lost();

private:
    void OnChanged();
    void Compare();
    void Restore();

    QWidget& m_window;
    const SystemWindows& m_system;
    QRect m_place;
    bool m_keeps = false;
    bool m_told = false; // the log knows that somebody changes the window
    int m_changes = 0;   // told by the system since the last check
    QTimer m_rests{this};
};
