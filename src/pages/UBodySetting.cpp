#include "pages/UBodySetting.h"

#include "lock/UBodySettingLockModal.h"
#include "pages/ActList.h"
#include "pages/Transparency.h"
#include "pages/UAppearance.h"
#include "platform/application/RyxWindow.h"
#include "platform/context/AppContextData.h"
#include "widgets/PermissionSwitches.h"
#include "widgets/UTextLabel.h"

#include <QEvent>
#include <QVBoxLayout>

UBodySetting::UBodySetting(QWidget* parent)
    : UFactsPage({"settings",
                  QT_TRANSLATE_NOOP("UBodySetting", "settings_title"),
                  QT_TRANSLATE_NOOP("UBodySetting", "settings_sentence"),
                  "",
                  {}},
                 parent),
      m_switchTitle(new UTextLabel("sectionTitle")),
      m_switches(new PermissionSwitches(*DevicePermissions::OfApplication())),
      m_switchSection(MakeSwitchCard()) {
    AddWidget(new UAppearance);
    AddWidget(m_switchSection);
    AddWidget(new Transparency(*DevicePermissions::OfApplication()));
    AddWidget(new ActList(*ActHistory::OfApplication()));
    connect(m_switches, &PermissionSwitches::HeldPressed, this, &UBodySetting::SetPermissionsLockStatus);
    connect(m_switches, &PermissionSwitches::NotSent, this, [this] {
        if (RyxWindow* window = RyxWindow::Of(this))
            window->Notify(NoticeKind::Warning, tr("permission_not_changed"));
    });
    connect(AppContextData::Instance(), &AppContextData::Changed, this, &UBodySetting::ShowSwitches);
    ShowSwitches();
    Retranslate();
}

QWidget* UBodySetting::MakeSwitchCard() {
    auto* card = new QFrame;
    card->setObjectName(QStringLiteral("card"));
    (new QVBoxLayout(card))->addWidget(m_switches);
    card->layout()->setContentsMargins(24, 12, 24, 12);
    auto* section = new QWidget;
    auto* column = new QVBoxLayout(section);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_switchTitle);
    column->addWidget(card);
    return section;
}

void UBodySetting::ShowSwitches() {
    m_switchSection->setVisible(AppContextData::Instance()->Enrolled());
}

void UBodySetting::SetPermissionsLockStatus() {
    if (!m_lockModal) {
        m_lockModal = new UBodySettingLockModal(this);
        connect(m_lockModal, &UBodySettingLockModal::PermissionsLock, this, &UBodySetting::OnPermissionsLock);
    }
    m_lockModal->show();
}

void UBodySetting::OnPermissionsLock() {
    m_switches->SetOpened(true);
}

void UBodySetting::hideEvent(QHideEvent* event) {
    m_switches->SetOpened(false);
    UFactsPage::hideEvent(event);
}

void UBodySetting::changeEvent(QEvent* event) {
    UFactsPage::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Retranslate();
}

void UBodySetting::Retranslate() {
    m_switchTitle->setText(tr("setting_dialog_title"));
}
