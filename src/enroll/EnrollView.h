#pragma once

#include "widgets/UPage.h"

class EnrollForm;
class UTextButton;

/// What one sees of the enrolment page: the form, which scrolls, and below it, always in view, how things
/// stand and the one button. GUI thread.
class EnrollView : public UPage {
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

signals:
    void ButtonClicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* MakeFooter();
    void LanguageChanges();

    EnrollForm* m_form;
    QLabel* m_errorArea;
    QWidget* m_status;
    QLabel* m_statusText;
    UTextButton* m_bind;
    bool m_readOnly = false;
};
