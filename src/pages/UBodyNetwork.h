#pragma once

#include "widgets/UFactsPage.h"

class NetworkCheck;
class NetworkStepRow;
class QVBoxLayout;
class UTextButton;
class UTextExport;

/// What the service says of the link to the organisation, and what a check step by step finds on the way
/// there.
class UBodyNetwork : public UFactsPage {
    Q_OBJECT

public:
    explicit UBodyNetwork(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* MakeActions();
    void ShowCheck();

    NetworkCheck& m_check;
    QLabel* m_verdict;
    UTextButton* m_start;
    UTextExport* m_export;
    QFrame* m_card;
    QVBoxLayout* m_list;
    QVector<NetworkStepRow*> m_rows;
};
