#pragma once

#include "platform/application/IotStatus.h"
#include "platform/context/AppContextData.h"
#include "widgets/StatusLook.h"

#include <QWidget>

class QFrame;
class QLabel;
class UElidedLabel;
class UIconLabel;
class ULoadingBar;

/// The strip at the top of the window: which device this is, who manages it, and the state of its link.
class UHeader : public QWidget {
    Q_OBJECT

public:
    explicit UHeader(QWidget* parent = nullptr);

    /// Shows a link state, given as the service's number; a number that names no state changes nothing.
    void UpdateStatus(int status);

    /// Shows that the window waits for an answer of the service.
    void SetBusy(bool busy);

    /// Keeps room at the end of the strip for a control that stands over it.
    void ReserveEnd(int width);

protected:
    void changeEvent(QEvent* event) override;

private:
    void OnContextChanged(AppContextData::Field field);
    void ShowLook();
    void UpdateDeviceInfo();

    IotStatus m_status = IotStatus::NotEnrolled;
    StatusLook m_look; // on screen
    UElidedLabel* m_deviceName;
    UElidedLabel* m_organisation;
    QWidget* m_chip;
    QFrame* m_dot;
    UIconLabel* m_statusIcon;
    QLabel* m_statusWords;
    QWidget* m_end;
    ULoadingBar* m_busy;
};
