#pragma once

#include <QPointer>
#include <QWidget>

class NoticeQueue;
class QVBoxLayout;

/// What lies over a window and waits for an answer; the rest of the window is dimmed and out of reach
/// meanwhile, for the keyboard too, and gets its focus back afterwards.
///
/// The overlays of a window never cover each other: show() shows one at once, or when those before it are
/// answered. Escape dismisses it, Return presses the button that has the focus.
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

    /// The user wants it gone.
    virtual void Dismiss() { hide(); }

    /// From now on the overlay goes when `page` is hidden.
    void HideWith(QWidget* page);

    /// Puts the card in the middle; what does not fit into the window is scrolled.
    void SetCard(QWidget* card);
    /// Sets a card in the look of dialogs, at most so wide, and returns its layout.
    QVBoxLayout* MakeCard(int width);

    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Request();
    void Present();

    QPointer<QWidget> m_owner;
    QPointer<QWidget> m_page;
    QPointer<NoticeQueue> m_queue;
    QPointer<QWidget> m_focusBefore;
};
