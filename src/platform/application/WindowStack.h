#pragma once

#include <QObject>
#include <QPointer>
#include <vector>

class QWidget;
class SystemWindows;

/// Keeps the product's topmost windows in order: of those on screen, the one with the higher dynamic
/// property "TopLevel" stays above, whatever is shown or activated later. GUI thread.
class WindowStack : public QObject {
    Q_OBJECT

public:
    WindowStack();
    explicit WindowStack(const SystemWindows& system);

    static WindowStack* Instance();

    /// Registers a top-level window, until it is destroyed.
    void PushWindow(QWidget* window);

    /// The registered window on screen with the highest level; null when none is there.
    QWidget* Highest() const;

    /// Whether a lock is on screen, under which nothing else shows up.
    bool IsLocked() const;

    /// The registered window on screen that is next above `window`; null when none is.
    QWidget* NextAbove(const QWidget* window) const;

    /// Lifts the highest window that is on screen and places the others below it, each below the next
    /// higher one, so that none shows above its betters even for a moment.
    void Restack();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PassFocusOn();

    const SystemWindows& m_system;
    std::vector<QPointer<QWidget>> m_windows; // the highest first
    bool m_restackPosted = false;
    bool m_focusIsFree = false; // one of the windows has gone from the screen
};
