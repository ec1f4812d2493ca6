#include "enroll/EnrollStateMachine.h"

#include "entity/IotEntities.h"
#include "platform/application/UsbDetector.h"
#include "platform/context/AppContextData.h"
#include "platform/link/PipeClientService.h"

EnrollStateMachine::EnrollStateMachine(EnrollPage& page, UsbDetector& detector, QObject* parent)
    : QObject(parent),
      m_page(page),
      m_state(AppContextData::Instance()->Enrolled() ? &EnrollStates::Connected()
                                                     : &EnrollStates::NoEnrollYet()) {
    PipeClientService::Instance()->Subscribe(this, &EnrollStateMachine::OnPipeDataReceived);
    connect(&detector, &UsbDetector::UsbArrived, this,
            [this](const QString& drive) { m_state->UsbArrived(*this, drive); });
    connect(&detector, &UsbDetector::UsbRemoved, this,
            [this](const QString& drive) { m_state->UsbRemoved(*this, drive); });
}

void EnrollStateMachine::FollowStatus(IotStatus status) {
    switch (status) {
    case IotStatus::NotEnrolled:
        SetState(EnrollStates::NoEnrollYet());
        break;
    case IotStatus::Connected:
        SetState(EnrollStates::Connected());
        break;
    case IotStatus::Disconnected:
        SetState(EnrollStates::DisConnected());
        break;
    case IotStatus::Connecting:
        SetState(EnrollStates::Connecting());
        break;
    default:
        return;
    }
    Enter();
}

void EnrollStateMachine::OnPipeDataReceived(PipeKey key, const std::string& body) {
    switch (key) {
    case PipeKey::IotStatusNotify: {
        IotStatusEntity entity;
        entity.ReadFromString(body);
        FollowStatus(static_cast<IotStatus>(entity.status));
        break;
    }
    case PipeKey::Binding: // only one of them acts
        m_state->BindResult(*this, body, true);
        m_state->UnbindResult(*this, body, true);
        break;
    case PipeKey::DeviceUnenrolled:
        m_state->UnenrolledNotice(*this, body, false);
        break;
    case PipeKey::DeviceNameChanged:
        m_state->DeviceNameChanged(*this, body);
        break;
    case PipeKey::DeviceTagsChanged:
        m_state->DeviceTagsChanged(*this, body);
        break;
    case PipeKey::AdminAccountChanged:
        m_state->AdminAccountChanged(*this, body);
        break;
    case PipeKey::AutoEnroll:
        m_state->AutoEnrollRequest(*this, body, true);
        break;
    default:
        break;
    }
}
