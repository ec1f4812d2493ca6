#pragma once

#include "widgets/UFactsPage.h"

class UTextButton;

/// What to read out on the telephone, updates of this program, and whom to ask for help.
class UBodyAbout : public UFactsPage {
    Q_OBJECT

public:
    explicit UBodyAbout(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void CopyAll();

    UTextButton* m_copy;
};
