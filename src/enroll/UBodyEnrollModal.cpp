#include "enroll/UBodyEnrollModal.h"

#include "platform/application/RyxWindow.h"
#include "widgets/AccessibleRole.h"
#include "widgets/UIconButton.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QVBoxLayout>

namespace {

constexpr int CardWidth = 520;

} // namespace

UBodyEnrollModal::UBodyEnrollModal(QWidget* page)
    : UOverlay(page),
      m_title(new UTextLabel("dialogTitle")),
      m_content(new UTextLabel("dialogContent")),
      m_close(new UIconButton("dialogClose", QStringLiteral("close"), 24)),
      m_cancel(new UTextButton),
      m_ok(new UTextButton(UTextButton::Look::Primary)) {
    Initialization();
    InitConnect();
    HideWith(page);
}

void UBodyEnrollModal::Initialization() {
    setObjectName(QStringLiteral("UBodyEnrollModal"));
    m_ok->setObjectName(QStringLiteral("okButton"));
    m_cancel->setObjectName(QStringLiteral("cancelButton"));

    auto* head = new QHBoxLayout;
    head->addWidget(m_title, 1);
    head->addWidget(m_close, 0, Qt::AlignTop);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_ok);
    QVBoxLayout* column = MakeCard(CardWidth);
    column->addLayout(head);
    column->addWidget(m_content);
    column->addSpacing(12);
    column->addLayout(buttons);
}

void UBodyEnrollModal::InitConnect() {
    connect(m_ok, &QPushButton::clicked, this, [this] {
        hide();
        if (RyxWindow* window = RyxWindow::Of(this))
            window->OpenNetworkPage();
    });
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        hide();
        emit OnOk();
    });
    connect(m_close, &QPushButton::clicked, this, &UBodyEnrollModal::Dismiss);
}

void UBodyEnrollModal::setTitle(const char* key) {
    m_titleKey = key;
    LanguageChanges();
}

void UBodyEnrollModal::setContent(const char* key) {
    m_contentKey = key;
    LanguageChanges();
}

void UBodyEnrollModal::setOkText(const char* key) {
    m_okKey = key;
    LanguageChanges();
}

void UBodyEnrollModal::setCancelText(const char* key) {
    m_cancelKey = key;
    LanguageChanges();
}

void UBodyEnrollModal::LanguageChanges() {
    const auto text = [](const QByteArray& key) { return key.isEmpty() ? QString() : tr(key); };
    m_title->setText(text(m_titleKey));
    m_content->setText(text(m_contentKey));
    m_ok->setText(text(m_okKey));
    m_cancel->setText(text(m_cancelKey));
    m_close->SetName(tr("dialog_close"));
    setAccessibleName(m_title->text());
    setAccessibleDescription(m_content->text());
}

void UBodyEnrollModal::Presented() {
    m_ok->setFocus(Qt::PopupFocusReason);
    AnnounceAlert(this);
}

void UBodyEnrollModal::Dismiss() {
    hide();
    emit OnClose();
}

void UBodyEnrollModal::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    UOverlay::changeEvent(event);
}
