#pragma once

#include <QWidget>

class EnrollForm;
class QLabel;
class QLayout;
class QScrollArea;
class UTextButton;

/// What one sees of the enrolment page: the form, which scrolls, and below it, always in view, how things
/// stand and the one button. GUI thread.
class EnrollView : public QWidget {
    Q_OBJECT

public:
    /// What the button does; the numbers are those of its property "ButtonState".
    enum class ButtonState { Bind = 0, Connect = 1, Unbind = 2 };

    explicit EnrollView(QWidget* parent);

    EnrollForm& Form() const { return *m_form; }

    ButtonState Button() const;
    void SetButton(ButtonState state);
    /// The button stays enabled while it says that its action runs.
    void SetLoading(bool loading);

    /// Whether the form is that of an enrolled device, which is read only.
    void SetReadOnly(bool readOnly);
    /// Says that the device is enrolled and that all is well, or leaves that unsaid.
    void ShowEnrolled(bool enrolled);
    void SetErrorAreaVisible(bool visible);

    void ScrollToEnd();
    void ScrollTo(QWidget& part);

signals:
    void ButtonClicked();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* MakeContent();
    QWidget* MakeFooter();
    void LanguageChanges();

    QLabel* m_title;
    QLabel* m_sentence;
    EnrollForm* m_form;
    QScrollArea* m_scroll;
    QLayout* m_margins;
    QLabel* m_errorArea;
    QWidget* m_status;
    QLabel* m_statusText;
    UTextButton* m_bind;
    bool m_readOnly = false;
};
