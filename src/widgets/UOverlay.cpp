#include "widgets/UOverlay.h"

#include "widgets/AccessibleRole.h"
#include "widgets/NoticeQueue.h"
#include "widgets/ReturnKey.h"
#include "widgets/UCentredArea.h"

#include <QKeyEvent>
#include <QVBoxLayout>

UOverlay::UOverlay(QWidget* parent) : QWidget(parent), m_owner(parent) {
    setAttribute(Qt::WA_StyledBackground);
    SetAccessibleRole(this, QAccessible::Dialog);
    connect(parent, &QObject::destroyed, this, &QObject::deleteLater); // it may be over the parent's window
    QWidget::setVisible(false);
}

UOverlay::~UOverlay() = default;

void UOverlay::HideWith(QWidget* page) {
    m_page = page;
    page->installEventFilter(this);
}

void UOverlay::SetCard(QWidget* card) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new UCentredArea(card));
}

QVBoxLayout* UOverlay::MakeCard(int width) {
    auto* card = new QFrame;
    card->setObjectName(QStringLiteral("dialogCard"));
    card->setMaximumWidth(width);
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(28, 24, 28, 24);
    column->setSpacing(12);
    SetCard(card);
    return column;
}

void UOverlay::setVisible(bool visible) {
    if (visible) {
        Request();
        return;
    }
    const bool wasShown = !isHidden();
    QWidget::setVisible(false);
    if (parentWidget() && parentWidget() != m_page)
        parentWidget()->removeEventFilter(this);
    if (!m_queue)
        return;
    if (!wasShown) {
        m_queue->Withdraw(this);
        return;
    }
    if (m_focusBefore)
        m_focusBefore->setFocus();
    m_queue->Finish(this);
}

void UOverlay::Request() {
    if (!m_owner || !isHidden())
        return;
    QWidget* window = m_owner->window();
    if (parentWidget() != window)
        setParent(window);
    m_queue = NoticeQueue::Of(window, QStringLiteral("overlay"));
    if (!m_queue->IsWaiting(this))
        m_queue->Add(this, [this] { Present(); });
}

void UOverlay::Present() {
    parentWidget()->installEventFilter(this);
    setGeometry(parentWidget()->rect());
    m_focusBefore = parentWidget()->focusWidget();
    QWidget::setVisible(true);
    raise();
    Presented();
}

// Every Tab within the overlay arrives here: it goes on to the next place within.
bool UOverlay::focusNextPrevChild(bool next) {
    QWidget* const from = focusWidget() ? focusWidget() : this;
    QWidget* to = from;
    const auto isPlace = [this](const QWidget* widget) {
        return isAncestorOf(widget) && widget->isVisible() && widget->isEnabled() &&
               (widget->focusPolicy() & Qt::TabFocus) != 0;
    };
    do
        to = next ? to->nextInFocusChain() : to->previousInFocusChain();
    while (to != from && !isPlace(to));
    to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

// The window below must not take presses beside the card for its own.
void UOverlay::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

// No key goes on to the window below.
void UOverlay::keyPressEvent(QKeyEvent* event) {
    if (event->isAutoRepeat())
        return;
    if (event->key() == Qt::Key_Escape)
        Dismiss();
    else
        PressFocusedButton(*this, *event);
}

bool UOverlay::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_page && event->type() == QEvent::Hide && !event->spontaneous())
        hide();
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}
