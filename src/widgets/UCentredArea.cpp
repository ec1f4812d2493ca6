#include "widgets/UCentredArea.h"

#include <QApplication>
#include <QGridLayout>

UCentredArea::UCentredArea(QWidget* card, QWidget* parent) : GestureScrollArea(parent) {
    auto* ground = new QWidget;
    auto* grid = new QGridLayout(ground);
    grid->setContentsMargins(24, 24, 24, 24);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 100);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(0, 1);
    grid->setRowStretch(2, 1);
    grid->addWidget(card, 1, 1);
    setWidget(ground);
    ground->setAutoFillBackground(false); // what is behind shows around the card
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now && isAncestorOf(now))
            ensureWidgetVisible(now);
    });
}
