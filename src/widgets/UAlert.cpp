#include "widgets/UAlert.h"

#include "widgets/AccessibleRole.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int CardWidth = 480;
constexpr int CardWidthWithThree = 580; // buttons

} // namespace

UAlert::UAlert(QWidget* parent)
    : UOverlay(parent),
      m_icon(new UIconLabel(28)),
      m_title(new UTextLabel("dialogTitle")),
      m_content(new UTextLabel("dialogContent")),
      m_other(new UTextButton(UTextButton::Look::Plain)),
      m_cancel(new UTextButton),
      m_ok(new UTextButton(UTextButton::Look::Primary)) {
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addWidget(m_other);
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_ok);
    auto* head = new QHBoxLayout;
    head->setSpacing(12);
    head->addWidget(m_icon, 0, Qt::AlignTop);
    head->addWidget(m_title, 1);
    QVBoxLayout* column = MakeCard(CardWidth);
    m_card = column->parentWidget();
    column->addLayout(head);
    column->addWidget(m_content);
    column->addSpacing(12);
    column->addLayout(buttons);

    setTabOrder(m_other, m_cancel);
    setTabOrder(m_cancel, m_ok);
    m_icon->hide();
    m_other->hide();
    m_cancel->hide();
    connect(m_other, &QPushButton::clicked, this, [this] { Close(&UAlert::OtherChosen); });
    connect(m_cancel, &QPushButton::clicked, this, [this] { Close(&UAlert::Rejected); });
    connect(m_ok, &QPushButton::clicked, this, [this] { Close(&UAlert::Accepted); });
    m_timeout.setSingleShot(true);
    connect(&m_timeout, &QTimer::timeout, this, [this] { Close(&UAlert::Rejected); });
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

void UAlert::SetKind(NoticeKind kind) {
    switch (kind) {
    case NoticeKind::Info:
        m_icon->SetIcon(QStringLiteral("info"), QStringLiteral("accent"));
        break;
    case NoticeKind::Success:
        m_icon->SetIcon(QStringLiteral("success"), QStringLiteral("success"));
        break;
    case NoticeKind::Warning:
        m_icon->SetIcon(QStringLiteral("warning"), QStringLiteral("warning"));
        break;
    case NoticeKind::Error:
        m_icon->SetIcon(QStringLiteral("error"), QStringLiteral("danger"));
        break;
    }
    m_icon->show();
}

void UAlert::SetOkText(const QString& text) {
    m_okTextGiven = true;
    m_ok->setText(text);
}

void UAlert::SetCancelText(const QString& text) {
    m_cancel->setText(text);
    m_cancel->setVisible(!text.isEmpty());
}

void UAlert::SetOtherText(const QString& text) {
    m_other->setText(text);
    m_other->setVisible(!text.isEmpty());
    m_card->setMaximumWidth(text.isEmpty() ? CardWidth : CardWidthWithThree);
}

void UAlert::SetDangerous(bool dangerous) {
    m_dangerous = dangerous;
    m_ok->SetLook(dangerous ? UTextButton::Look::Danger : UTextButton::Look::Primary);
}

void UAlert::setVisible(bool visible) {
    if (!visible)
        m_timeout.stop();
    UOverlay::setVisible(visible);
}

void UAlert::Presented() {
    (m_dangerous && !m_cancel->isHidden() ? m_cancel : m_ok)->setFocus(Qt::PopupFocusReason);
    if (m_timeoutMs > 0)
        m_timeout.start(m_timeoutMs);
    AnnounceAlert(this);
}

void UAlert::Close(void (UAlert::*answer)()) {
    hide();
    emit(this->*answer)();
}

void UAlert::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        (m_cancel->isHidden() ? m_ok : m_cancel)->click();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        (m_cancel->hasFocus() ? m_cancel : m_other->hasFocus() ? m_other : m_ok)->click();
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
