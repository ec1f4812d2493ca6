#pragma once

#include "pages/ActHistory.h"

#include <QWidget>

class QFrame;
class QGridLayout;
class QLabel;
class UTextButton;

/// What was done here, in words, the latest first. GUI thread.
class ActList : public QWidget {
    Q_OBJECT

public:
    explicit ActList(const ActHistory& history, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ShowAll();

    const ActHistory& m_history;
    QLabel* m_title;
    QLabel* m_empty;
    QFrame* m_card;
    QGridLayout* m_rows;
    UTextButton* m_older;
    bool m_showsAll = false;
};
