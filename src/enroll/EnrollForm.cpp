#include "enroll/EnrollForm.h"

#include "enroll/AccountValidator.h"
#include "enroll/EnrollAgreement.h"
#include "enroll/EnrollNameField.h"
#include "enroll/UBodyEnrollTags.h"
#include "entity/EnrollEntities.h"
#include "widgets/UTextLabel.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

constexpr int CodeLength = 6;
constexpr int NarrowestWithTwoColumns = 640;

} // namespace

EnrollForm::EnrollForm()
    : m_first(new QBoxLayout(QBoxLayout::LeftToRight)),
      m_code(new EnrollField("schoolCode", EnrollField::Script::LeftToRight)),
      m_account(new EnrollField("adminAccount", EnrollField::Script::LeftToRight)),
      m_name(new EnrollNameField),
      m_tagsLabel(new UTextLabel("fieldLabel")),
      m_tags(new UBodyEnrollTags),
      m_line(new QFrame),
      m_agreement(new EnrollAgreement) {
    setObjectName(QStringLiteral("card"));
    m_line->setObjectName(QStringLiteral("formLine"));
    m_line->setFixedHeight(1);
    m_first->setSpacing(20);
    m_first->addWidget(m_code, 2);
    m_first->addWidget(m_account, 3);
    auto* tags = new QVBoxLayout;
    tags->setSpacing(6);
    tags->addWidget(m_tagsLabel);
    tags->addWidget(m_tags);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(24, 20, 24, 20);
    column->setSpacing(16);
    column->addLayout(m_first);
    column->addWidget(m_name);
    column->addLayout(tags);
    column->addWidget(m_line);
    column->addWidget(m_agreement);
    for (const EnrollField* field : {m_code, m_account, static_cast<EnrollField*>(m_name)})
        for (QLineEdit* edit : field->Edits())
            edit->installEventFilter(this);
}

EnrollForm::~EnrollForm() = default;

// A page that has gone asks nothing, and neither does one that is read only.
bool EnrollForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut && m_editable && isVisible()) {
        if (watched == &m_code->Edit())
            CheckSchoolCodeInputIsRight();
        else if (watched == &m_account->Edit())
            CheckAdminAccountInputIsRight();
        else if (!m_name->Edits().contains(qobject_cast<QLineEdit*>(QApplication::focusWidget())))
            CheckDeviceNameInputIsRight();
    }
    return QFrame::eventFilter(watched, event);
}

EnrollField* EnrollForm::CheckInputIsRight() {
    return !CheckSchoolCodeInputIsRight()     ? m_code
           : !CheckAdminAccountInputIsRight() ? m_account
           : !CheckDeviceNameInputIsRight()   ? m_name
                                              : nullptr;
}

bool EnrollForm::CheckSchoolCodeInputIsRight() {
    const int length = m_code->Text().size();
    m_code->SetError(length == 0            ? tr("view_register_input_error_empty")
                     : length != CodeLength ? tr("view_register_input_error_length_error")
                                            : QString());
    return length == CodeLength;
}

bool EnrollForm::CheckAdminAccountInputIsRight() {
    m_account->ClearError();
    if (m_account->Text().isEmpty()) {
        m_account->SetError(tr("view_register_input_error_empty"));
        return false;
    }
    auto validator = std::make_unique<AccountValidator>();
    m_account->Edit().setValidator(validator.get());
    m_accountValidator = std::move(validator);
    const bool right = m_account->Edit().hasAcceptableInput();
    if (!right)
        m_account->SetError(tr("view_register_input_error_email_input"));
    return right;
}

bool EnrollForm::CheckDeviceNameInputIsRight() {
    const bool right = !m_name->Name().trimmed().isEmpty();
    m_name->SetError(right ? QString() : tr("view_register_input_error_empty"));
    return right;
}

void EnrollForm::SetAllEditAble(bool editable) {
    m_editable = editable;
    m_code->SetEditAble(editable);
    m_account->SetEditAble(editable);
    m_name->SetEditAble(editable);
    m_tags->SetAllEditAble(editable);
    m_tagsLabel->setVisible(editable || !m_tags->Tags().empty());
    m_line->setVisible(editable);
    m_agreement->setVisible(editable);
}

void EnrollForm::Fill(const UsbEnrollmentFile& file) {
    m_code->SetText(QString::fromStdString(file.code));
    m_code->ClearError();
    m_account->SetText(QString::fromStdString(file.account));
    m_account->ClearError();
    if (!file.deviceName.empty())
        m_name->SetText(QString::fromStdString(file.deviceName));
    if (!file.devicePrefix.empty() || !file.deviceSuffix.empty())
        m_name->SetParts(QString::fromStdString(file.devicePrefix),
                         QString::fromStdString(file.deviceSuffix));
    m_name->ClearError();
    if (!file.tags.empty())
        SetTags(file.tags);
}

void EnrollForm::SetTags(const std::vector<std::string>& tags) {
    m_tags->ChangeTags(tags);
    m_tagsLabel->setVisible(m_editable || !tags.empty());
}

void EnrollForm::ClearErrors() {
    m_code->ClearError();
    m_account->ClearError();
    m_name->ClearError();
    m_tags->ClearError();
}

void EnrollForm::LanguageChanges() {
    m_code->SetTexts(tr("view_register_school_code"), tr("view_register_school_code_hint"));
    m_account->SetTexts(tr("view_register_admin_account"), tr("view_register_admin_account_hint"));
    m_name->LanguageChanges();
    m_tagsLabel->setText(tr("fact_tags"));
    m_agreement->LanguageChanges();
}

void EnrollForm::resizeEvent(QResizeEvent* event) {
    m_first->setDirection(width() < NarrowestWithTwoColumns ? QBoxLayout::TopToBottom
                                                            : QBoxLayout::LeftToRight);
    QFrame::resizeEvent(event);
}
