#include "feedback/FeedbackForm.h"

#include "feedback/AttachmentStrip.h"
#include "feedback/DescriptionBox.h"
#include "platform/context/EmailAddress.h"
#include "platform/context/Theme.h"
#include "widgets/AccessibleRole.h"
#include "widgets/BlankHint.h"
#include "widgets/GestureScrollArea.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QLineEdit>
#include <QVBoxLayout>

FeedbackForm::FeedbackForm(const FeedbackBackend& backend, QWidget* parent)
    : QWidget(parent),
      m_descriptionTitle(new UTextLabel("fieldLabel")),
      m_description(new DescriptionBox),
      m_counter(new QLabel),
      m_attachments(new AttachmentStrip(backend)),
      m_emailTitle(new UTextLabel("fieldLabel")),
      m_email(new QLineEdit),
      m_emailError(new UTextLabel("fieldError")) {
    m_counter->setObjectName(QStringLiteral("characterCounter"));
    m_counter->setTextFormat(Qt::PlainText);
    m_email->setObjectName(QStringLiteral("email"));
    m_email->setInputMethodHints(Qt::ImhEmailCharactersOnly);
    m_email->setAcceptDrops(false); // files that are dropped on it are the page's
    m_descriptionTitle->setBuddy(m_description);
    setFocusProxy(m_description);
    m_emailTitle->setBuddy(m_email);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_descriptionTitle);
    column->addWidget(m_description);
    column->addWidget(m_counter, 0, Qt::AlignTrailing);
    column->addWidget(m_attachments);
    column->addSpacing(12);
    column->addWidget(m_emailTitle);
    column->addWidget(m_email);
    column->addWidget(m_emailError);
    m_emailError->hide();

    connect(m_description, &QTextEdit::textChanged, this, &FeedbackForm::OnDescriptionChanged);
    connect(m_description, &DescriptionBox::AttachmentPasted, m_attachments, &AttachmentStrip::Take);
    connect(m_attachments, &AttachmentStrip::Changed, this, &FeedbackForm::Changed);
    connect(m_email, &QLineEdit::textChanged, this, [this] {
        ShowEmailError(false);
        emit Changed();
    });
    connect(m_email, &QLineEdit::returnPressed, this, &FeedbackForm::Submitted);
    MarkBlank(m_description);
    MarkBlank(m_email);
    OnDescriptionChanged();
    Retranslate();
}

QString FeedbackForm::Description() const {
    return m_description->toPlainText();
}

QString FeedbackForm::Email() const {
    return m_email->text();
}

bool FeedbackForm::IsComplete() const {
    return !Description().trimmed().isEmpty() && !m_attachments->IsPending();
}

bool FeedbackForm::HoldsSomething() const {
    return !Description().trimmed().isEmpty() || !Email().trimmed().isEmpty() || !m_attachments->IsEmpty();
}

bool FeedbackForm::CheckEmail() {
    ShowEmailError(!Email().isEmpty() && !IsEmailAddress(Email()));
    if (m_emailIsWrong) {
        m_email->setFocus();
        GestureScrollArea::Reveal(m_emailError);
        AnnounceAlert(m_emailError);
    }
    return !m_emailIsWrong;
}

void FeedbackForm::Clear() {
    m_description->clear();
    m_email->clear();
    m_attachments->Clear();
    GestureScrollArea::Reveal(m_descriptionTitle);
}

void FeedbackForm::SetLocked(bool locked) {
    m_description->setReadOnly(locked);
    m_email->setReadOnly(locked);
    m_attachments->SetLocked(locked);
}

void FeedbackForm::OnDescriptionChanged() {
    const int characters = Description().toUcs4().size();
    m_counter->setText(QStringLiteral("%1/%2").arg(characters).arg(CharacterLimit));
    Theme::SetProperty(m_counter, "charToLong", characters > CharacterLimit);
    emit Changed();
}

void FeedbackForm::ShowEmailError(bool wrong) {
    m_emailIsWrong = wrong;
    m_emailError->setVisible(wrong);
    Theme::SetProperty(m_email, "error", wrong);
}

void FeedbackForm::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
    QWidget::changeEvent(event);
}

void FeedbackForm::Retranslate() {
    m_descriptionTitle->setText(tr("log_description_title"));
    m_description->setPlaceholderText(tr("log_description_hint"));
    m_description->setAccessibleName(tr("log_description_title"));
    m_emailTitle->setText(tr("log_contract_email_title"));
    m_email->setPlaceholderText(tr("log_contract_email_hint"));
    m_email->setAccessibleName(tr("log_contract_email_title"));
    m_emailError->setText(tr("view_register_input_error_email_input"));
}
