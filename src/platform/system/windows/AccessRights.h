#pragma once

#include "platform/system/FileRights.h"

#include <memory>

#include <windows.h>

struct CloseFile {
    using pointer = HANDLE;
    void operator()(HANDLE file) const {
        if (file != INVALID_HANDLE_VALUE)
            CloseHandle(file);
    }
};
/// What CreateFileW has returned; closed with this.
using FileHandle = std::unique_ptr<HANDLE, CloseFile>;

/// What a file's security descriptor, which has an owner and an access list, says of its rights. Any thread.
FileRights RightsIn(PSECURITY_DESCRIPTOR descriptor);
