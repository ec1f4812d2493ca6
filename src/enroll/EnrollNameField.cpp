#include "enroll/EnrollNameField.h"

#include "widgets/UTextButton.h"

#include <QBoxLayout>
#include <QLineEdit>

namespace {

constexpr int NarrowestRow = 560;

} // namespace

EnrollNameField::EnrollNameField()
    : EnrollField("deviceName", Script::OfLanguage),
      m_row(new QBoxLayout(QBoxLayout::LeftToRight)),
      m_prefix(AddEdit("devicePrefix", Script::OfLanguage)),
      m_suffix(AddEdit("deviceSuffix", Script::OfLanguage)),
      m_switch(new UTextButton(UTextButton::Look::Plain)) {
    m_switch->setObjectName(QStringLiteral("nameSwitch"));
    m_row->setSpacing(12);
    for (QLineEdit* edit : {&Edit(), m_prefix, m_suffix})
        m_row->addWidget(edit, 1);
    m_row->addWidget(m_switch);
    SetAnswer(m_row);
    connect(m_switch, &QPushButton::clicked, this, [this] {
        ClearError();
        ShowParts(!m_parts);
        FocusAnswer();
    });
    ShowParts(false);
}

QString EnrollNameField::Name() const {
    return m_parts ? m_prefix->text() + m_suffix->text() : Text();
}

void EnrollNameField::SetText(const QString& name) {
    EnrollField::SetText(name);
    ShowParts(false);
}

void EnrollNameField::SetParts(const QString& prefix, const QString& suffix) {
    if (!prefix.isEmpty())
        m_prefix->setText(prefix);
    if (!suffix.isEmpty())
        m_suffix->setText(suffix);
    ShowParts(true);
}

void EnrollNameField::SetEditAble(bool editable) {
    EnrollField::SetEditAble(editable);
    m_switch->setVisible(editable);
}

void EnrollNameField::FocusAnswer() {
    (m_parts ? m_prefix : &Edit())->setFocus();
}

void EnrollNameField::resizeEvent(QResizeEvent* event) {
    m_row->setDirection(width() < NarrowestRow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    EnrollField::resizeEvent(event);
}

void EnrollNameField::ShowParts(bool parts) {
    m_parts = parts;
    Edit().setVisible(!parts);
    m_prefix->setVisible(parts);
    m_suffix->setVisible(parts);
    LanguageChanges();
}

void EnrollNameField::LanguageChanges() {
    SetTexts(tr("view_register_device_name"), tr("view_register_device_name_hint"));
    m_prefix->setPlaceholderText(tr("view_register_device_prefix"));
    m_prefix->setAccessibleName(tr("view_register_device_prefix"));
    m_suffix->setPlaceholderText(tr("view_register_device_suffix"));
    m_suffix->setAccessibleName(tr("view_register_device_suffix"));
    m_switch->setText(m_parts ? tr("view_register_name_whole") : tr("view_register_name_parts"));
}
