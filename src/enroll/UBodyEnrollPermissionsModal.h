#pragma once

#include "widgets/UOverlay.h"

class DevicePermissions;
class PermissionSwitches;
class QLabel;
class UTextButton;

/// What the organisation may do with the device, shown after it has been enrolled. Done and Escape close it,
/// and it goes with its page. GUI thread.
class UBodyEnrollPermissionsModal : public UOverlay {
    Q_OBJECT

public:
    UBodyEnrollPermissionsModal(QWidget* page, DevicePermissions& permissions);

    /// Tells that the device is enrolled; to be called after show().
    void EnrollSuccessfullyToast();
    void ModifiedSuccessfullyToast();

protected:
    void Presented() override;
    void changeEvent(QEvent* event) override;

private:
    void Initialization();
    void InitConnect();
    void LanguageChanges();

    QLabel* m_title;
    QLabel* m_footer;
    PermissionSwitches* m_switches;
    UTextButton* m_done;
};
