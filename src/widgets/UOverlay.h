#pragma once

#include <QPointer>
#include <QWidget>

class NoticeQueue;

/// What lies over a window and waits for an answer; the rest of the window is dimmed and out of reach
/// meanwhile, for the keyboard too, and gets its focus back afterwards.
///
/// The overlays of a window never cover each other: show() shows one at once, or when those before it are
/// answered.
class UOverlay : public QWidget {
    Q_OBJECT

public:
    /// The overlay covers the window that `parent` is in when it is shown, and goes with the parent.
    explicit UOverlay(QWidget* parent);
    ~UOverlay() override;

    void setVisible(bool visible) override;

protected:
    /// It has just come over its window: gives the focus to where the user begins.
    virtual void Presented() {}

    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// What it was made for; null when that has gone.
    QWidget* Owner() const { return m_owner; }

private:
    void Request();
    void Present();

    QPointer<QWidget> m_owner;
    QPointer<NoticeQueue> m_queue;
    QPointer<QWidget> m_focusBefore;
};
