#pragma once

#include <QFrame>

class QCheckBox;
class QLabel;
class UTextButton;

/// What the user has to agree to before the device is enrolled, with the ways to the texts. GUI thread.
class EnrollAgreement : public QFrame {
    Q_OBJECT

public:
    EnrollAgreement();

    bool IsAgreed() const;
    QCheckBox& Box() const { return *m_box; }
    void LanguageChanges();

private:
    QLabel* m_privacy;
    QLabel* m_agreement;
    UTextButton* m_privacyLink;
    UTextButton* m_agreementLink;
    QCheckBox* m_box;
};
