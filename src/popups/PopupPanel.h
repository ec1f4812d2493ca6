#pragma once

#include <QFrame>

class QLabel;
class QStackedLayout;
class UElidedLabel;
class UTextButton;

/// What the picker says: first what to do, then what was picked, and what can be done with it.
class PopupPanel : public QFrame {
    Q_OBJECT

public:
    explicit PopupPanel(QWidget* parent);

    void SetHint(const QString& hint);
    void ShowHint();
    void ShowBusy();
    /// A window that may be reported.
    void ShowWindow(const QPixmap& icon, const QString& program, const QString& title);
    /// One that may not.
    void ShowRefusal();
    void SetReportEnabled(bool enabled);
    void Retranslate();

signals:
    void ReportPressed();
    void CancelPressed();

private:
    enum class Page { Hint, Window, Refusal };
    void Show(Page page);

    QStackedLayout* m_pages;
    QLabel* m_hint;
    QLabel* m_icon;
    QLabel* m_of;
    UElidedLabel* m_program;
    UElidedLabel* m_title;
    QLabel* m_refusal;
    UTextButton* m_cancel;
    UTextButton* m_report;
};
