#pragma once

#include <QFrame>

class QLabel;
class QProgressBar;
class UIconLabel;
class UpdateStore;
class UTextButton;

/// What is known of updates of this program, and what the user may do about them. GUI thread.
class UUpdateCard : public QFrame {
    Q_OBJECT

public:
    explicit UUpdateCard(UpdateStore& store);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Show();
    void ShowProgress();
    QString StateWords() const;
    QString VersionWords() const;

    UpdateStore& m_store;
    UIconLabel* m_icon;
    QLabel* m_title;
    QLabel* m_state;
    QLabel* m_age;
    QProgressBar* m_progress;
    QLabel* m_notes;
    UTextButton* m_update;
    UTextButton* m_later;
    UTextButton* m_check;
};
