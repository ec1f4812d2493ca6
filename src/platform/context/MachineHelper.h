#pragma once

#include <string>

/// Facts about this machine.
class MachineHelper {
public:
    /// The name the device goes by: the one it is managed under, or else the host name. UTF-8.
    static std::string GetDeviceName();

    /// The display name of the organisation that manages the device; empty while none does. UTF-8.
    static std::string GetOrganisationName();
};
