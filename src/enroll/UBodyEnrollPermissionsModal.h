#pragma once

#include "platform/link/PipeKey.h"
#include "widgets/UOverlay.h"

#include <string>
#include <vector>

class QLabel;
class USwitchRow;
class UTextButton;

/// What the organisation may do with the device, shown after it has been enrolled: the user's changes go to
/// the service at once, the service's move the switches silently. Done and Escape close it, and it goes with
/// its page. GUI thread.
class UBodyEnrollPermissionsModal : public UOverlay {
    Q_OBJECT

public:
    explicit UBodyEnrollPermissionsModal(QWidget* page);

    /// Sets the switches to what is granted, and sends nothing. Unknown names are ignored.
    void SetPermissions(const std::vector<std::string>& granted);

    /// Tells that the device is enrolled; to be called after show().
    void EnrollSuccessfullyToast();
    void ModifiedSuccessfullyToast();

    /// The user's changes of the switches: each is sent at once. Without screen view there is no remote
    /// control: it is switched off and reported too.
    void OnLocationControlStateChange(bool on);
    void OnScreenViewStateChange(bool on);
    void ReportWebrtcControlState(bool on);
    /// Nothing follows from it.
    void OnRealtimeScreenStateChange(bool /*on*/) {}

protected:
    void Presented() override;
    void changeEvent(QEvent* event) override;

private:
    void Initialization();
    void InitConnect();
    void LanguageChanges();
    void OnPipeDataReceived(PipeKey key, const std::string& body);
    bool Report(PipeKey key, bool on);
    void SetScreenView(bool on, bool control);

    QLabel* m_title;
    QLabel* m_footer;
    USwitchRow* m_location;
    USwitchRow* m_screenView;
    USwitchRow* m_remoteControl;
    bool m_controlTold = false; // to or by the service, also while the switch cannot show it
    UTextButton* m_done;
};
