#pragma once

#include <QWidget>

class QLabel;
class QLayout;
class QScrollArea;
class QVBoxLayout;
class UBackButton;

/// The frame of a page: icon, title and sentence above what the page shows, which scrolls, and below that,
/// always in view, a footer where there is one. GUI thread.
class UPage : public QWidget {
    Q_OBJECT

public:
    UPage(const QString& icon, QWidget* parent);

    void ScrollToEnd();

signals:
    void BackRequested();

protected:
    /// Shows a way back; pressing it emits BackRequested.
    void ShowBackButton();
    /// In the language in use.
    void SetTitle(const QString& title);
    void SetSentence(const QString& sentence);
    /// What the page shows, from top to bottom.
    QVBoxLayout& Content() const { return *m_content; }
    /// Puts a widget below the page, where it stays while the page is scrolled.
    void SetFooter(QWidget* widget);

    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void UpdateMargins();

    UBackButton* m_back;
    QLabel* m_title;
    QLabel* m_sentence;
    QVBoxLayout* m_content;
    QScrollArea* m_scroll;
    QLayout* m_margins;
    QLayout* m_footerMargins = nullptr;
};
