#pragma once

#include "messages/MessageFiles.h"

#include <QFrame>

class QLayout;
class QLabel;
class QProgressBar;
class UElidedLabel;
class UTextButton;

/// The file of a message: how far it is, where it is, and what can be done with it. Nothing is ever opened by
/// itself.
class MessageFilePanel : public QFrame {
    Q_OBJECT

public:
    explicit MessageFilePanel(MessageFiles& files, QWidget* parent = nullptr);

    /// Shows the file of this message.
    void SetMessage(const Message& message);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    UTextButton* AddButton(QLayout& row, const char* name, const char* key, void (MessageFilePanel::*act)());
    void Show();
    void ShowPicture();
    static QString FailureText(const FileFetchOutcome& outcome);
    QString StatusText(const MessageFile& file) const;
    void Fetch() { m_files.Fetch(m_id); }
    void Cancel() { m_files.Cancel(m_id); }
    void Open();
    void ShowInFolder();
    void SaveAs();

    MessageFiles& m_files;
    int m_id = 0;
    bool m_hasDigest = false;
    QImage m_image;
    UElidedLabel* m_name;
    QLabel* m_status;
    QProgressBar* m_progress;
    QLabel* m_picture;
    UTextButton* m_again;
    UTextButton* m_cancel;
    UTextButton* m_open;
    UTextButton* m_showInFolder;
    UTextButton* m_saveAs;
};
