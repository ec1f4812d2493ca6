#pragma once

#include <QObject>
#include <QPointer>
#include <vector>

class QWidget;
class SystemDesktop;

/// Keeps the product's topmost windows in order: of those on screen, the one with the higher dynamic
/// property "TopLevel" stays above, whatever is shown or activated later. GUI thread.
class WindowStack : public QObject {
    Q_OBJECT

public:
    WindowStack();
    explicit WindowStack(const SystemDesktop& desktop);

    static WindowStack* Instance();

    /// Registers a top-level window, until it is destroyed.
    void PushWindow(QWidget* window);

    /// Lifts all registered windows that are on screen, the lowest first.
    void Restack();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const SystemDesktop& m_desktop;
    std::vector<QPointer<QWidget>> m_windows;
    bool m_restackPosted = false;
};
