#pragma once

#include <QWidget>

class MessageHistory;
class QListWidget;
class UTextLabel;

/// The window with the last messages of the administrator, the newest first. GUI thread.
class UMessageList : public QWidget {
    Q_OBJECT

public:
    explicit UMessageList(const MessageHistory& history);

signals:
    /// The user wants to read a message once more.
    void Chosen(int id);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Fill();

    const MessageHistory& m_history;
    QListWidget* m_list;
    UTextLabel* m_none;
};
