#pragma once

#include "messages/MessageFiles.h"
#include "messages/MessageHistory.h"
#include "messages/MessageQueue.h"
#include "messages/MessageRequest.h"
#include "platform/application/Clock.h"

#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QWidget>

class MessageFilePanel;
class MessageText;
class QFrame;
class QLabel;
class QPlainTextEdit;
class UIconLabel;
class UTextButton;

/// Shows the administrator's messages, one after the other, above the other windows and below every lock. It
/// leaves the keyboard where it is until the user comes to it. GUI thread.
class UMessageFileDialog : public QWidget {
    Q_OBJECT

public:
    /// What the dialog consists of is made when it first has something to show.
    UMessageFileDialog(MessageHistory& history, MessageFiles& files, const Clock& clock = Clock::System());

    /// Takes a message with or without a file, which stands in `file`, or withdraws what its operation has
    /// sent before.
    void SetDataRequest(const MessageRequest& request, const FileInfoParams& file);

    /// Shows what an earlier start has left unread.
    void ShowUnread();

    /// Shows a message of the history once more, because the user wants to read it.
    void ShowAgain(int id);

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Initialization();
    QWidget* MakeHead();
    QFrame* MakeAddressPanel();
    void Enqueue(const Message& message);
    void Withdraw(int operationId);
    void Replace(int operationId);
    void Drop(int id);
    void OnSecond();
    void ShowCurrent();
    void ShowCount();
    void Fill(const Message& message);
    void ShowAddress(const QUrl& address);
    void PlaceOnScreen();
    bool MayBeClosed() const;
    void CloseCurrent();
    void MarkRead(int id);
    void OnFileChanged(int id);
    void LanguageChanges();

    MessageHistory& m_history;
    MessageFiles& m_files;
    const Clock& m_clock;
    MessageQueue m_queue;
    QTimer m_second{this};
    int m_shown = 0;        // the message that the parts show
    bool m_isFresh = false; // it came within the last second: what is pressed now may be meant for another
    QUrl m_address;
    UIconLabel* m_icon = nullptr;
    QLabel* m_title = nullptr;
    QLabel* m_time = nullptr;
    QLabel* m_count = nullptr;
    MessageText* m_text = nullptr;
    MessageFilePanel* m_file = nullptr;
    QFrame* m_addressPanel = nullptr;
    QLabel* m_addressTitle = nullptr;
    QPlainTextEdit* m_addressText = nullptr;
    UTextButton* m_addressOpen = nullptr;
    UTextButton* m_addressBack = nullptr;
    QLabel* m_note = nullptr;
    UTextButton* m_ok = nullptr;
};
