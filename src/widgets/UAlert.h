#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

class NoticeQueue;
class QLabel;
class UTextButton;

/// A box over a window that asks or tells something and waits for the answer; the rest of the window is
/// dimmed and out of reach meanwhile, for the keyboard too.
///
/// The alerts of a window never cover each other: show() shows it at once, or when those before it are
/// answered. Screen readers announce it. Escape is the cancel button, or the OK button when it is alone.
class UAlert : public QWidget {
    Q_OBJECT

public:
    /// The alert covers the window that `parent` is in when it is shown.
    explicit UAlert(QWidget* parent);
    ~UAlert() override;

    void SetTitle(const QString& title);
    void SetContent(const QString& content);
    /// Text of the button that agrees; at first it says OK.
    void SetOkText(const QString& text);
    /// Text of the button that declines; as long as it is empty there is no such button.
    void SetCancelText(const QString& text);
    /// The agreeing button takes something away for good.
    void SetDangerous(bool dangerous);
    /// Lets the alert go away by itself, as if declined, after so many milliseconds on screen; 0: never.
    void SetTimeout(int milliseconds) { m_timeoutMs = milliseconds; }

    void setVisible(bool visible) override;

signals:
    void Accepted();
    void Rejected();

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Request();
    void Present();
    void Close(bool accepted);
    void Retranslate();

    QPointer<QWidget> m_owner;
    QPointer<NoticeQueue> m_queue;
    QPointer<QWidget> m_focusBefore;
    QLabel* m_title;
    QLabel* m_content;
    UTextButton* m_ok;
    UTextButton* m_cancel;
    bool m_okTextGiven = false;
    int m_timeoutMs = 0;
    QTimer m_timeout;
};
