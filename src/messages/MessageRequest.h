#pragma once

#include "entity/FileEntities.h"

#include <optional>

/// What key 44 brings. The body says nowhere which of the requests it is, so it is read as all of them at
/// once, and what is there decides.
struct MessageRequest final : JsonEntity<MessageRequest, OperationCommandRequest> {
    std::optional<bool> jobStatus;
    std::int32_t loopTime = 0;
    std::int32_t playDuration = 0;
    std::optional<bool> operationRight;
    std::string text;
    FileInfoParams fileInfoParams;

    RYX_KEYS(jobStatus, loopTime, playDuration, operationRight, text, fileInfoParams);

    bool HasText() const { return text.find_first_not_of(" \t\r\n") != std::string::npos; }
    bool HasFile() const { return !fileInfoParams.url.empty(); }
    /// What the operation has sent before is to go.
    bool Withdraws() const { return jobStatus == false; }
    /// Of the requests with a text, the emergency alone has neither of the two.
    bool IsEmergency() const { return HasText() && !jobStatus && !operationRight; }
    bool MayBeClosed() const { return operationRight != false; }
};
