#include "enroll/EnrollView.h"

#include "enroll/EnrollForm.h"
#include "platform/context/Theme.h"
#include "widgets/UIconLabel.h"
#include "widgets/UTextButton.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVariant>

namespace {

constexpr int AboveToasts = 34; // between the button and what a toast must not hide

} // namespace

EnrollView::EnrollView(QWidget* parent)
    : UPage(QStringLiteral("enrolment"), parent),
      m_form(new EnrollForm),
      m_errorArea(new UTextLabel("fieldError")),
      m_status(new QWidget),
      m_statusText(new UTextLabel("enrolStatusText")),
      m_bind(new UTextButton(UTextButton::Look::Primary)) {
    Content().addWidget(m_form);
    SetFooter(MakeFooter());
    connect(m_bind, &QPushButton::clicked, this, &EnrollView::ButtonClicked);
    SetButton(ButtonState::Bind);
    ShowEnrolled(false);
    SetErrorAreaVisible(false);
    LanguageChanges();
}

QWidget* EnrollView::MakeFooter() {
    m_bind->setObjectName(QStringLiteral("bindButton"));
    m_bind->SetLoadingIcon(QStringLiteral(":/res/images/ic_32_loading red.svg"));
    auto* status = new QHBoxLayout(m_status);
    status->setContentsMargins(0, 0, 0, 0);
    status->setSpacing(10);
    status->addWidget(new UIconLabel(24, QStringLiteral("success"), QStringLiteral("statusConnected")));
    status->addWidget(m_statusText, 1);

    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(m_status, 1);
    row->addStretch();
    row->addWidget(m_bind);
    auto* bar = new QWidget;
    auto* column = new QVBoxLayout(bar);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(AboveToasts);
    column->addWidget(m_errorArea);
    column->addLayout(row);
    return bar;
}

EnrollView::ButtonState EnrollView::Button() const {
    return static_cast<ButtonState>(m_bind->property("ButtonState").toInt());
}

void EnrollView::SetButton(ButtonState state) {
    Theme::SetProperty(m_bind, "ButtonState", static_cast<int>(state));
    switch (state) {
    case ButtonState::Bind:
        m_bind->setText(tr("view_register_windows_title_bind_state"));
        break;
    case ButtonState::Connect:
        m_bind->setText(tr("view_register_windows_button_connect"));
        break;
    case ButtonState::Unbind:
        m_bind->setText(tr("view_register_windows_title_unbind_state"));
        break;
    }
    if (state != ButtonState::Connect) // one that is not connected may be enrolled
        Theme::SetProperty(m_bind, "isEnroll", state == ButtonState::Unbind);
}

void EnrollView::SetLoading(bool loading) {
    m_bind->SetLook(loading ? UTextButton::Look::Secondary : UTextButton::Look::Primary);
    m_bind->SetLoading(loading);
}

void EnrollView::SetReadOnly(bool readOnly) {
    m_readOnly = readOnly;
    m_form->SetAllEditAble(!readOnly);
    SetSentence(readOnly ? tr("enrolment_sentence") : tr("enrolment_sentence_form"));
}

void EnrollView::ShowEnrolled(bool enrolled) {
    Theme::SetProperty(m_status, "isEnroll", enrolled);
    m_status->setVisible(enrolled);
}

void EnrollView::SetErrorAreaVisible(bool visible) {
    m_errorArea->setVisible(visible);
}

void EnrollView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    UPage::changeEvent(event);
}

void EnrollView::LanguageChanges() {
    SetTitle(tr("enrolment_title"));
    m_errorArea->setText(tr("bind_result_error_area"));
    m_statusText->setText(tr("enrolment_state_enrolled"));
    m_form->LanguageChanges();
    SetReadOnly(m_readOnly);
    SetButton(Button());
}
