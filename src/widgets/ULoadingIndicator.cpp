#include "widgets/ULoadingIndicator.h"

#include "widgets/AccessibleRole.h"

#include <QEvent>
#include <QPainter>

ULoadingIndicator::ULoadingIndicator(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    SetAccessibleRole(this, QAccessible::Animation);
    Retranslate();
}

void ULoadingIndicator::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    m_spinner.Paint(painter, rect());
}

void ULoadingIndicator::timerEvent(QTimerEvent* event) {
    if (m_spinner.Tick(event->timerId()))
        update();
}

void ULoadingIndicator::showEvent(QShowEvent*) {
    m_spinner.Start(this);
}

void ULoadingIndicator::hideEvent(QHideEvent*) {
    m_spinner.Stop();
}

void ULoadingIndicator::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QWidget::changeEvent(event);
}

void ULoadingIndicator::Retranslate() {
    setAccessibleName(tr("loading"));
}
