#include "platform/link/ControllerBase.h"

#include "platform/link/PipeClientService.h"

ControllerBase::~ControllerBase() {
    SetService(nullptr);
}

void ControllerBase::SetService(PipeClientService* service) {
    if (m_service)
        m_service->RemoveController(this);
    m_service = service;
    if (m_service)
        m_service->AddController(this);
}

bool ControllerBase::Send(PipeKey key) {
    return m_service && m_service->Send(key);
}

bool ControllerBase::Send(PipeKey key, const std::string& body) {
    return m_service && m_service->Send(key, body);
}

bool ControllerBase::Send(PipeKey key, const RyxEntity& entity) {
    return m_service && m_service->Send(key, entity);
}
