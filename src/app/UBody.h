#pragma once

#include <QStackedWidget>
#include <vector>

/// Shows one of the pages that stand beside the menu. They are made when they are first asked for and then
/// kept. Indices are those of Pages().
class UBody : public QStackedWidget {
    Q_OBJECT

public:
    explicit UBody(QWidget* parent = nullptr);

    /// Shows a page. Does nothing for one that does not stand beside the menu.
    void SwitchPage(int index);

    /// Whether the page is the one shown.
    bool IsSwitchPage(int index) const;

    /// The page with the index; null until it is first shown.
    QWidget* Page(int index) const;

private:
    std::vector<QWidget*> m_pages;
};
