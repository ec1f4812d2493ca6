#pragma once

#include "entity/AppEntities.h"
#include "popups/PopupPicker.h"
#include "widgets/UFactsPage.h"

#include <QHash>
#include <QTimer>

class PopupHistory;
class PopupRow;
class QVBoxLayout;
class USwitchRow;
class UTextButton;

/// The pop-up windows that the organisation does not want here: which were closed, and why. What it shows of
/// the rules is what the service says; a wish of the user goes to the service and is shown once that agrees.
class UBodyFeaturesPopups : public UFactsPage {
    Q_OBJECT

public:
    explicit UBodyFeaturesPopups(QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    UBodyFeaturesPopups(QWidget* parent, PopupHistory* history);

    void Initialization();
    void InitConnect();
    void Retranslate();
    /// Does the same a moment later, once for a burst of records.
    void ShowLater();
    void ShowAll();
    void ShowSwitch();
    void ShowRecords();
    PopupRow* MakeRow();

    QWidget* MakePickCard();
    void PickFromList();
    void TellBusy();

    void Ask(const SyncPopupsParams& command);
    void OnSwitched(bool on);
    void OnReportedWrong(const PopupsTypeParams& rule);
    void OnNoAnswer();
    void EndWaiting();

    PopupHistory* m_history;
    PopupPicker m_picker;
    USwitchRow* m_switch;
    QLabel* m_pickTitle;
    QLabel* m_pickSentence;
    UTextButton* m_point;
    UTextButton* m_choose;
    QLabel* m_listTitle;
    QLabel* m_empty;
    QVBoxLayout* m_list;
    UTextButton* m_older;
    QHash<QString, PopupRow*> m_rows; // by day and rule
    int m_mostRows;
    QString m_doubted; // the identity of the rule that the service was asked to drop
    QTimer m_showTimer{this};
    QTimer m_answerTimer{this};
};
