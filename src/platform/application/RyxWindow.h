#pragma once

#include "platform/application/IotStatus.h"
#include "platform/application/NoticeKind.h"

#include <QWidget>

class ControllerBase;

/// The main window as the pages and dialogs in it know it: what they may ask of it, and what it tells
/// them. A page finds it with RyxWindow::Of and needs no header of the application shell. GUI thread.
class RyxWindow : public QWidget {
    Q_OBJECT

public:
    /// What a page does with the service's key 3; the numbers are the service's own.
    enum class BindAction { Bind = 1, Unbind = 3 };
    Q_ENUM(BindAction)

    explicit RyxWindow(QWidget* parent = nullptr);

    /// The main window that `widget` belongs to, also through parents that are windows of their own such
    /// as dialogs; null when there is none.
    static RyxWindow* Of(const QWidget* widget);

    /// Told by the main window whenever the service reports the state of its link, whatever number it sent.
    void IotStatusChanged(IotStatus status);

    /// The status last reported, which may be a number that names no state; NotEnrolled at start.
    IotStatus LinkStatus() const { return m_linkStatus; }
    /// The status last reported that names a state, for all that is shown of it.
    IotStatus KnownLinkStatus() const { return m_knownLinkStatus; }

    /// The controller to send through; null when the application has none.
    ControllerBase* MainController() const;

    /// Tells the user something that has happened, wherever the user is: in the window, or in the tray while
    /// the window is not seen. `text` is plain text in the language in use.
    virtual void Notify(NoticeKind kind, const QString& text) = 0;

    /// A request to bind or unbind goes out: the window shows that it is busy, until EndBinding.
    void BeginBinding(BindAction action);
    /// The request was answered or given up. Harmless without BeginBinding.
    void EndBinding();
    bool IsBinding() const { return m_binding; }

    /// Brings the network page to the front.
    virtual void OpenNetworkPage() = 0;

    /// Brings the enrolment page to the front, also out of the tray, but never over a lock.
    virtual void OpenEnrolmentPage() = 0;

signals:
    /// LinkStatus() is another one than before.
    void LinkStatusChanged(IotStatus status);
    void BindingBegan(RyxWindow::BindAction action);
    void BindingEnded();

private:
    IotStatus m_linkStatus = IotStatus::NotEnrolled;
    IotStatus m_knownLinkStatus = IotStatus::NotEnrolled;
    bool m_binding = false;
};
