#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

class QLabel;

/// Reminds of the agreement, in a bubble over the window that points at a control of the page. It goes by
/// itself, and with its page; asked for again, it stays its whole time again. GUI thread.
class UBodyEnrollTip : public QWidget {
    Q_OBJECT

public:
    /// The tip lies over the window that `page` is in and goes with the page.
    explicit UBodyEnrollTip(QWidget* page);

    /// Shows the tip at `anchor`, a control of the page, for so many milliseconds from now.
    void ShowAt(QWidget* anchor, int milliseconds = 3000);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Place();
    void LanguageChanges();

    QPointer<QWidget> m_page;
    QPointer<QWidget> m_anchor;
    QLabel* m_text;
    QTimer m_gone{this};
};
