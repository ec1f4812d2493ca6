#include "widgets/UAlert.h"

#include "widgets/AccessibleRole.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int CardWidth = 480;

} // namespace

UAlert::UAlert(QWidget* parent)
    : UOverlay(parent),
      m_title(new UTextLabel("dialogTitle")),
      m_content(new UTextLabel("dialogContent")),
      m_ok(new UTextButton(UTextButton::Look::Primary)),
      m_cancel(new UTextButton) {
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_ok);
    QVBoxLayout* column = MakeCard(CardWidth);
    column->addWidget(m_title);
    column->addWidget(m_content);
    column->addSpacing(12);
    column->addLayout(buttons);

    setTabOrder(m_cancel, m_ok);
    m_cancel->hide();
    connect(m_ok, &QPushButton::clicked, this, [this] { Close(true); });
    connect(m_cancel, &QPushButton::clicked, this, [this] { Close(false); });
    m_timeout.setSingleShot(true);
    connect(&m_timeout, &QTimer::timeout, this, [this] { Close(false); });
    Retranslate();
}

UAlert::~UAlert() = default;

void UAlert::SetTitle(const QString& title) {
    m_title->setText(title);
    setAccessibleName(title);
}

void UAlert::SetContent(const QString& content) {
    m_content->setText(content);
    setAccessibleDescription(content);
}

void UAlert::SetOkText(const QString& text) {
    m_okTextGiven = true;
    m_ok->setText(text);
}

void UAlert::SetCancelText(const QString& text) {
    m_cancel->setText(text);
    m_cancel->setVisible(!text.isEmpty());
}

void UAlert::SetDangerous(bool dangerous) {
    m_ok->SetLook(dangerous ? UTextButton::Look::Danger : UTextButton::Look::Primary);
}

void UAlert::setVisible(bool visible) {
    if (!visible)
        m_timeout.stop();
    UOverlay::setVisible(visible);
}

void UAlert::Presented() {
    m_ok->setFocus(Qt::PopupFocusReason);
    if (m_timeoutMs > 0)
        m_timeout.start(m_timeoutMs);
    AnnounceAlert(this);
}

void UAlert::Close(bool accepted) {
    hide();
    if (accepted)
        emit Accepted();
    else
        emit Rejected();
}

void UAlert::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        (m_cancel->isHidden() ? m_ok : m_cancel)->click();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        (m_cancel->hasFocus() ? m_cancel : m_ok)->click();
}

void UAlert::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    UOverlay::changeEvent(event);
}

void UAlert::Retranslate() {
    if (!m_okTextGiven)
        m_ok->setText(tr("button_ok"));
}
