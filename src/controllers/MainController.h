#pragma once

#include "platform/link/ControllerRyx.h"

/// Keeps what the service pushes in the application context and turns its device messages into the
/// signals of ControllerRyx. GUI thread.
class MainController : public ControllerRyx {
    Q_OBJECT

public:
    MainController();

    void OnConnectChanged(bool connected) override;
    void OnPipeDataReceived(PipeKey key, const std::string& body) override;

private:
    void ProcessPasswordUnlock(const std::string& body);
    void ProcessPasswordUnbind(const std::string& body);
};
