#pragma once

/// State of the device's link to the management service, with the numbers that travel on the pipe.
enum class IotStatus : int {
    NotEnrolled = 0,
    Connected = 2,
    Disconnected = 4,
    Connecting = 5,
};

/// False for numbers that the service may send but that name no state this product knows.
constexpr bool IsKnownIotStatus(int status) {
    switch (static_cast<IotStatus>(status)) {
    case IotStatus::NotEnrolled:
    case IotStatus::Connected:
    case IotStatus::Disconnected:
    case IotStatus::Connecting:
        return true;
    }
    return false;
}
