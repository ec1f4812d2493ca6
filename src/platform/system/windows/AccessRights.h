#pragma once

#include "platform/system/FileRights.h"

#include <windows.h>

/// What a file's security descriptor, which has an owner and an access list, says of its rights. Any thread.
FileRights RightsIn(PSECURITY_DESCRIPTOR descriptor);
