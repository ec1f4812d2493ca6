#pragma once

#include "widgets/UFactsPage.h"

class PermissionSwitches;
class UBodySettingLockModal;

/// What the user may choose, what the organisation may do here, and what it did.
class UBodySetting : public UFactsPage {
    Q_OBJECT

public:
    explicit UBodySetting(QWidget* parent);

    /// Asks for the six digits, for a switch that the organisation holds.
    void SetPermissionsLockStatus();
    /// They were right: the switches can be moved until the page is left or the organisation holds others.
    void OnPermissionsLock();

protected:
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* MakeSwitchCard();
    void ShowSwitches();
    void Retranslate();

    QLabel* m_switchTitle;
    PermissionSwitches* m_switches;
    QWidget* m_switchSection;
    UBodySettingLockModal* m_lockModal = nullptr;
};
