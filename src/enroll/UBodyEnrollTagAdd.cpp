#include "enroll/UBodyEnrollTagAdd.h"

#include "platform/context/Theme.h"
#include "widgets/BlankHint.h"
#include "widgets/UTextButton.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>

UBodyEnrollTagAdd::UBodyEnrollTagAdd(QWidget* parent)
    : QFrame(parent), m_field(new QLineEdit), m_add(new UTextButton(UTextButton::Look::Plain)) {
    setObjectName(QStringLiteral("DeviceTagsAdd"));
    m_field->setObjectName(QStringLiteral("tagField"));
    m_add->setObjectName(QStringLiteral("tagAddButton"));
    MarkBlank(m_field);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2, 2, 2, 2);
    row->setSpacing(4);
    row->addWidget(m_field, 1);
    row->addWidget(m_add);
    setFocusProxy(m_field);
    m_field->installEventFilter(this);
    connect(m_field, &QLineEdit::textEdited, this, [this] {
        SetError(false);
        emit Edited();
    });
    connect(m_add, &QPushButton::clicked, this, &UBodyEnrollTagAdd::Add);
    LanguageChanges();
    UpdateLook();
}

void UBodyEnrollTagAdd::SetEnable(bool enable) {
    if (enable == isEnabled())
        return;
    setEnabled(enable);
    UpdateLook();
}

void UBodyEnrollTagAdd::SetError(bool error) {
    if (error == m_error)
        return;
    m_error = error;
    UpdateLook();
}

void UBodyEnrollTagAdd::Clear() {
    m_field->clear();
    SetError(false);
}

void UBodyEnrollTagAdd::FocusField() {
    m_field->setFocus();
}

void UBodyEnrollTagAdd::Add() {
    FocusField();
    emit AddTagSgl(m_field->text().trimmed());
}

// Return means the tag, and must not reach what it would press elsewhere.
bool UBodyEnrollTagAdd::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        UpdateLook();
    } else if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            if (!key->isAutoRepeat())
                Add();
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void UBodyEnrollTagAdd::UpdateLook() {
    const bool input = m_field->hasFocus();
    Theme::SetProperty(this, "enable", isEnabled());
    Theme::SetProperty(this, "input", input);
    Theme::SetProperty(this, "error", m_error);
    Theme::SetProperty(this, "normal", isEnabled() && !input && !m_error);
}

void UBodyEnrollTagAdd::LanguageChanges() {
    m_field->setPlaceholderText(tr("view_register_windows_tag_hint"));
    m_field->setAccessibleName(tr("view_register_windows_tag_hint"));
    m_add->setText(tr("view_tag_add"));
}

void UBodyEnrollTagAdd::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    QFrame::changeEvent(event);
}
