#pragma once

#include "platform/application/NoticeKind.h"
#include "widgets/UOverlay.h"

#include <QTimer>

class QLabel;
class UIconLabel;
class UTextButton;

/// A box over a window that asks or tells something. Screen readers announce it. Escape is the cancel button,
/// or the OK button when it is alone.
class UAlert : public UOverlay {
    Q_OBJECT

public:
    explicit UAlert(QWidget* parent);
    ~UAlert() override;

    void SetTitle(const QString& title);
    void SetContent(const QString& content);
    /// Puts the kind's sign before the title; at first there is none.
    void SetKind(NoticeKind kind);
    /// Text of the button that agrees; at first it says OK.
    void SetOkText(const QString& text);
    /// Text of the button that declines; as long as it is empty there is no such button.
    void SetCancelText(const QString& text);
    /// Text of a third button, for another way than the two; as long as it is empty there is none.
    void SetOtherText(const QString& text);
    /// The agreeing button takes something away for good: the declining one has the focus at first.
    void SetDangerous(bool dangerous);
    /// Lets the alert go away by itself, as if declined, after so many milliseconds on screen; 0: never.
    void SetTimeout(int milliseconds) { m_timeoutMs = milliseconds; }

    void setVisible(bool visible) override;

signals:
    void Accepted();
    void Rejected();
    void OtherChosen();

protected:
    void Presented() override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Close(void (UAlert::*answer)());
    void Retranslate();

    QWidget* m_card;
    UIconLabel* m_icon;
    QLabel* m_title;
    QLabel* m_content;
    UTextButton* m_other;
    UTextButton* m_cancel;
    UTextButton* m_ok;
    bool m_okTextGiven = false;
    bool m_dangerous = false;
    int m_timeoutMs = 0;
    QTimer m_timeout;
};
