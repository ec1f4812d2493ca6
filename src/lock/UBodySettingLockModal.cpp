#include "lock/UBodySettingLockModal.h"

#include "lock/PasswordPrompt.h"
#include "platform/context/AppContextData.h"
#include "widgets/AccessibleRole.h"
#include "widgets/UCentredArea.h"

#include <QEvent>
#include <QVBoxLayout>

UBodySettingLockModal::UBodySettingLockModal(QWidget* page, const Clock& clock)
    : UOverlay(page), m_prompt(new PasswordPrompt(clock)) {
    Initialization();
    InitConnect();
    LanguageChanges();
}

void UBodySettingLockModal::Initialization() {
    setObjectName(QStringLiteral("UBodySettingLockModal"));
    m_prompt->setObjectName(QStringLiteral("UBodySettingLockModalClass"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new UCentredArea(m_prompt));
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
    Owner()->installEventFilter(this);
}

void UBodySettingLockModal::LanguageChanges() {
    m_prompt->SetTexts({tr("setting_permission_title"), tr("setting_permission_content")});
    setAccessibleName(m_prompt->accessibleName());
}

void UBodySettingLockModal::Presented() {
    AnnounceAlert(this);
}

bool UBodySettingLockModal::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Owner() && event->type() == QEvent::Hide && !event->spontaneous())
        hide();
    return UOverlay::eventFilter(watched, event);
}

void UBodySettingLockModal::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        LanguageChanges();
    UOverlay::changeEvent(event);
}
