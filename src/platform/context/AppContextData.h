#pragma once

#include <string>
#include <vector>

/// What the process knows of the device and its enrolment. GUI thread only; texts are UTF-8.
struct AppContextData {
    static AppContextData* Instance();

    bool enrolled = false;
    bool linked = false;        ///< the pipe to the agent service is up
    std::string contextText;    ///< the service's context, as last received
    std::string unlockPassword; ///< hash of the six digits that unlock screen and settings
    std::string unbindPassword; ///< hash of the six digits that allow an unenrolment
    std::string schoolCode;
    std::string adminAccount;
    std::string deviceName;
    std::vector<std::string> deviceTags;
    std::vector<std::string> permissionList;
};
