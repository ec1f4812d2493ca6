#include "enroll/EnrollField.h"

#include "platform/context/Theme.h"
#include "widgets/AccessibleRole.h"
#include "widgets/BlankHint.h"
#include "widgets/UTextLabel.h"

#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>

EnrollField::EnrollField(const char* name, Script script)
    : m_column(new QVBoxLayout(this)),
      m_label(new UTextLabel("fieldLabel")),
      m_edit(nullptr),
      m_error(new UTextLabel("fieldError")) {
    setProperty("error", false);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(6);
    m_column->addWidget(m_label);
    m_edit = AddEdit(name, script);
    m_column->addWidget(m_edit);
    m_column->addWidget(m_error);
    m_column->addStretch();
    m_error->hide();
}

QLineEdit* EnrollField::AddEdit(const char* name, Script script) {
    auto* edit = new QLineEdit(this);
    edit->setObjectName(QString::fromLatin1(name));
    MarkBlank(edit);
    if (script == Script::LeftToRight) {
        edit->setLayoutDirection(Qt::LeftToRight);
        edit->setInputMethodHints(Qt::ImhNoAutoUppercase | Qt::ImhNoPredictiveText | Qt::ImhPreferLatin);
    }
    return edit;
}

void EnrollField::SetAnswer(QLayout* answer) {
    m_column->removeWidget(m_edit);
    m_column->insertLayout(1, answer);
}

QString EnrollField::Text() const {
    return m_edit->text();
}

void EnrollField::SetText(const QString& text) {
    if (text != Text())
        m_edit->setText(text);
    m_edit->setCursorPosition(0);
}

void EnrollField::SetTexts(const QString& label, const QString& placeholder) {
    m_label->setText(label);
    m_edit->setAccessibleName(label);
    m_edit->setPlaceholderText(placeholder);
}

void EnrollField::SetError(const QString& error) {
    const bool isNew = !error.isEmpty() && error != m_error->text();
    m_error->setText(error);
    m_error->setVisible(!error.isEmpty());
    for (QLineEdit* edit : Edits())
        edit->setAccessibleDescription(error);
    MarkError(!error.isEmpty());
    if (isNew)
        AnnounceAlert(m_error);
}

void EnrollField::MarkError(bool error) {
    if (property("error") == error)
        return;
    Theme::SetProperty(this, "error", error);
    for (QLineEdit* edit : Edits()) { // the rule is for the lines in the frame
        edit->style()->unpolish(edit);
        edit->style()->polish(edit);
    }
}

void EnrollField::SetEditAble(bool editable) {
    for (QLineEdit* edit : Edits())
        edit->setReadOnly(!editable);
}

QList<QLineEdit*> EnrollField::Edits() const {
    return findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
}

void EnrollField::FocusAnswer() {
    m_edit->setFocus();
}
