#pragma once

#include "app/MenuEntry.h"

#include <QStackedWidget>
#include <array>

/// Shows the page of a menu entry. Pages are made when they are first asked for and then kept.
class UBody : public QStackedWidget {
    Q_OBJECT

public:
    explicit UBody(QWidget* parent = nullptr);

    /// Shows the page of the menu entry `index`. Does nothing for an entry without a page in the body.
    void SwitchPage(int index);

    /// Whether the page of the menu entry `index` is the one shown.
    bool IsSwitchPage(int index) const;

    /// Menu entry of the page shown; -1 before the first.
    int CurrentPage() const;

    /// The page of a menu entry; null until it is first shown.
    QWidget* Page(int index) const;

private:
    std::array<QWidget*, MenuEntryCount> m_pages{};
};
