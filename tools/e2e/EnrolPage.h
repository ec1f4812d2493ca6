#pragma once

#include "RunningProduct.h"

#include <QColor>

/// The enrolment page in the main window, as a person sees it in the light theme.
class EnrolPage {
public:
    explicit EnrolPage(const RunningProduct& product) : m_desktop(product.Screen()) {}

    /// Presses the launcher's button; the first field then has the keyboard.
    bool Open();
    /// Types the answers, and agrees or not. The first field has the focus.
    void Fill(const std::string& code, const std::string& account, const std::string& name,
              bool agrees = true);
    /// Waits for the button below the form, and presses it so many times in a row, whatever it says.
    void PressButton(int times = 1);

    /// What the button offers: to enrol or to connect, and to unenrol. Neither while it waits.
    bool OffersAction() const { return !Button(Accent).isEmpty(); }
    bool OffersUnenrolment() const { return !Button(Danger).isEmpty(); }
    /// Below the form stands that it did not work.
    bool TellsFailure() const;
    /// In the form something is marked as wrong.
    bool MarksAnswer() const;
    /// Something lies over the window and dims it.
    bool IsCovered() const;

    template <class Condition>
    bool Wait(Condition condition) const {
        return WaitUntil([&] { return (this->*condition)(); });
    }

private:
    static const QColor Accent, Danger;

    QRect Window() const;
    QRect Footer() const;
    /// The button's place if it has this colour.
    QRect Button(const QColor& color) const;

    Desktop& m_desktop;
};
