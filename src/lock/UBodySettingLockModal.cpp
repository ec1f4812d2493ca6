#include "lock/UBodySettingLockModal.h"

#include "lock/PasswordPrompt.h"
#include "platform/context/AppContextData.h"
#include "widgets/AccessibleRole.h"

#include <QEvent>

UBodySettingLockModal::UBodySettingLockModal(QWidget* page, const Clock& clock)
    : UOverlay(page), m_prompt(new PasswordPrompt(clock)) {
    Initialization();
    InitConnect();
    LanguageChanges();
    HideWith(page);
}

void UBodySettingLockModal::Initialization() {
    setObjectName(QStringLiteral("UBodySettingLockModal"));
    m_prompt->setObjectName(QStringLiteral("UBodySettingLockModalClass"));
    SetCard(m_prompt);
}

void UBodySettingLockModal::InitConnect() {
    connect(m_prompt, &PasswordPrompt::Confirmed, this, [this] {
        hide();
        emit PermissionsLock();
    });
    connect(m_prompt, &PasswordPrompt::Closed, this, &QWidget::hide);
    connect(AppContextData::Instance(), &AppContextData::Changed, this, [this](AppContextData::Field field) {
        if (field == AppContextData::Field::Enrolled && !AppContextData::Instance()->Enrolled())
            hide();
    });
}

void UBodySettingLockModal::LanguageChanges() {
    m_prompt->SetTexts({tr("setting_permission_title"), tr("setting_permission_content")});
    setAccessibleName(m_prompt->accessibleName());
}

void UBodySettingLockModal::Presented() {
    AnnounceAlert(this);
}

void UBodySettingLockModal::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    UOverlay::changeEvent(event);
}
