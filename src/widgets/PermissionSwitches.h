#pragma once

#include "platform/context/DevicePermissions.h"

#include <QWidget>

class QLabel;
class USwitchRow;

/// The switches of DevicePermissions, wherever the user may change them: a change goes to the service at
/// once, what the service sets is shown. One that the organisation holds says so, and does not move. GUI
/// thread.
class PermissionSwitches : public QWidget {
    Q_OBJECT

public:
    explicit PermissionSwitches(DevicePermissions& permissions, QWidget* parent = nullptr);

    /// While opened, held switches can be moved, too. Ends by itself when the organisation holds others.
    void SetOpened(bool opened);

    /// The user's changes. Without screen view there is no remote control: both states are sent.
    void OnLocationControlStateChange(bool on) { Change(DevicePermissions::Switch::Location, on); }
    void OnScreenViewStateChange(bool on) { Change(DevicePermissions::Switch::ScreenView, on); }
    void ReportWebrtcControlState(bool on) { Change(DevicePermissions::Switch::RemoteControl, on); }
    /// Nothing follows from it.
    void OnRealtimeScreenStateChange(bool /*on*/) {}

signals:
    /// The user has pressed a switch that the organisation holds.
    void HeldPressed();
    /// The service has been told of the user's change.
    void Sent();
    /// It was not reached, and the switch is where it was.
    void NotSent();

protected:
    void changeEvent(QEvent* event) override;

private:
    void Change(DevicePermissions::Switch which, bool on);
    void ShowAll();
    void ShowRow(USwitchRow& row, DevicePermissions::Switch which, const QString& title, const QString& tip);
    void ShowNote();

    DevicePermissions& m_permissions;
    USwitchRow* m_location;
    USwitchRow* m_screenView;
    USwitchRow* m_remoteControl;
    QLabel* m_note;
    bool m_opened = false;
};
