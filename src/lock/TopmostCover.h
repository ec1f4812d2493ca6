#pragma once

#include "lock/ScreenCovers.h"
#include "lock/WindowKeeper.h"

#include <QObject>
#include <QTimer>

class QWidget;
class SystemInput;
class SystemWindows;

/// Keeps a window over the whole desktop while it is shown: above everything of a lower level, on every
/// screen, with the focus and, if it wants so, with the keyboard held from the system. What others change is
/// undone at once where the system tells, and each second besides. GUI thread.
class TopmostCover : public QObject {
    Q_OBJECT

public:
    enum class Keyboard { Hold, Share };

    /// `window` is a top-level window with the dynamic property "TopLevel"; the screens beside its own are
    /// covered one level below. It must not outlive the cover.
    TopmostCover(QWidget& window, Keyboard keyboard, const SystemWindows& windows, const SystemInput& input);
    ~TopmostCover() override;

    /// Before the window comes to the screen: closes the program's own pop-ups, which would stay above it
    /// and keep the keyboard.
    static void ClosePopups();

    /// Lifts the window to the topmost band, below what has a higher level, without moving, resizing or
    /// activating it.
    void Raise();

    /// Covers every screen and takes what the window must have. To be called when the window is shown.
    void Cover();

    /// Lets go of the window, which is about to be hidden: nothing of it is kept any more.
    void Release();

    /// Gives everything else back. To be called when the window is hidden.
    void Uncover();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// A window that covers the desktop was destroyed from outside: only a new start can cover it again.
    void Lost();

private:
    void CoverScreens();
    void HoldKeyboard();
    void FetchFocus();
    void LookAfter();

    QWidget& m_window;
    const bool m_holdsKeyboard;
    const SystemWindows& m_windows;
    const SystemInput& m_input;
    WindowKeeper m_keeper;
    ScreenCovers m_covers;
    QTimer m_second{this};
};
