#pragma once

#include <string>

/// Facts about this machine.
class MachineHelper {
public:
    /// The name the device goes by: the enrolled one, the configured one, or the host name. UTF-8.
    static std::string GetDeviceName();
};
