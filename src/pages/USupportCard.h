#pragma once

#include <QFrame>

class QLabel;
class UTextButton;

/// Whom to ask for help and how, the link's last messages for whoever helps, and the licences. GUI thread.
class USupportCard : public QFrame {
    Q_OBJECT

public:
    USupportCard();

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowTrace();
    void ShowLicences();
    void Retranslate();

    QLabel* m_title;
    QLabel* m_contact;
    UTextButton* m_mail;
    UTextButton* m_page;
    QLabel* m_hint;
    UTextButton* m_trace;
    UTextButton* m_licences;
};
