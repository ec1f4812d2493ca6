#pragma once

#include "widgets/UOverlay.h"

class QLabel;
class QPlainTextEdit;
class QVBoxLayout;
class UBackButton;
class UElidedLabel;
class UTextButton;
struct NamedFile;

/// Lists the log files that a report carries, and shows what is in each. Goes away for good when it is
/// closed.
class LogFilesDialog : public UOverlay {
    Q_OBJECT

public:
    LogFilesDialog(const QString& folder, const QString& deviceName, QWidget* parent);

protected:
    void Presented() override;
    void Dismiss() override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* MakeList(const QString& folder);
    QWidget* MakeView();
    void AddRow(QVBoxLayout& rows, const NamedFile& file);
    void ShowFile(const NamedFile& named);
    void ShowList();
    void Close();
    void Retranslate();

    const QString m_deviceName;
    int m_files = 0;
    qint64 m_bytes = 0;
    bool m_isReadable = true; // the file in the view
    bool m_isText = true;
    QWidget* m_listPart = nullptr;
    QWidget* m_viewPart = nullptr;
    QLabel* m_title;
    QLabel* m_content;
    UTextButton* m_close;
    UBackButton* m_back;
    UElidedLabel* m_viewTitle;
    QLabel* m_viewNote;
    QPlainTextEdit* m_view;
    QWidget* m_opened = nullptr; // the button that led to the view
};
