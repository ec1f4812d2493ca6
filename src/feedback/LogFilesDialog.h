#pragma once

#include "widgets/UOverlay.h"

class QGridLayout;
class QLabel;
class QPlainTextEdit;
class QStackedWidget;
class QVBoxLayout;
class UBackButton;
class UElidedLabel;
class UTextButton;

/// Lists the log files that a report carries, and shows what is in each. Goes away for good when it is
/// closed.
class LogFilesDialog : public UOverlay {
    Q_OBJECT

public:
    LogFilesDialog(const QString& folder, const QString& deviceName, QWidget* parent);

protected:
    void Presented() override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* MakeList();
    QWidget* MakeView();
    void AddRow(QVBoxLayout& rows, const QString& path);
    void ShowFile(const QString& path);
    void ShowList();
    void Close();
    void Retranslate();

    const QString m_folder;
    const QString m_deviceName;
    int m_files = 0;
    qint64 m_bytes = 0;
    QGridLayout* m_grid;
    QStackedWidget* m_stack;
    QLabel* m_title;
    QLabel* m_content;
    UTextButton* m_close;
    UBackButton* m_back;
    UElidedLabel* m_viewTitle;
    QLabel* m_viewNote;
    QPlainTextEdit* m_view;
    QWidget* m_opened = nullptr; // the button that led to the view
};
