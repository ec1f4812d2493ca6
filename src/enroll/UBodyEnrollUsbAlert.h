#pragma once

#include "widgets/UAlert.h"

/// Tells that the enrolment page was filled in from a file on a USB drive, and what is left to do. Escape,
/// its button and the window's exit button dismiss it; it goes with its page. GUI thread.
class UBodyEnrollUsbAlert : public UAlert {
    Q_OBJECT

public:
    explicit UBodyEnrollUsbAlert(QWidget* page);

    /// The file to name; its folder is left out.
    void SetFile(const QString& path);

    /// Dismisses the alert. The exit button of the alert's window is connected to it from the first show()
    /// on.
    void OnButtonExitClicked();

protected:
    void Presented() override;
    void changeEvent(QEvent* event) override;

private:
    void LanguageChanges();

    QString m_fileName;
};
