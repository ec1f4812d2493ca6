#pragma once

#include "popups/PopupHistory.h"

#include <QFrame>

class QLabel;
class UElidedLabel;
class UTextButton;

/// One record of the history: which program's window was asked to close, when, how often, and by which rule.
class PopupRow : public QFrame {
    Q_OBJECT

public:
    /// What is known of the record's rule now.
    enum class Rule { Unknown, InForce, Dropped };

    explicit PopupRow(QWidget* parent = nullptr);

    /// `today` is the day of which no date is shown.
    void Show(const PopupRecord& record, Rule rule, const QDate& today);

    /// Shows that the service was asked to drop the rule.
    void SetWaiting(bool waiting);

    /// What of it gets the keyboard.
    QWidget* TabStop() const;

signals:
    /// The user says that the window should not have been closed.
    void ReportedWrong(const PopupsTypeParams& rule);

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowRecord();
    void ShowIcon();

    PopupRecord m_record;
    Rule m_ruleState = Rule::Unknown;
    QDate m_today;
    QLabel* m_icon;
    UElidedLabel* m_program;
    UElidedLabel* m_title;
    QLabel* m_rule;
    QLabel* m_time;
    QLabel* m_state;
    UTextButton* m_wrong;
};
