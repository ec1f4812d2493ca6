#pragma once

#include <memory>

#include <windows.h>

struct CloseObject {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
/// A handle that is closed with this; null is none.
using ObjectHandle = std::unique_ptr<void, CloseObject>;

struct CloseFile {
    using pointer = HANDLE;
    void operator()(HANDLE file) const {
        if (file != INVALID_HANDLE_VALUE)
            CloseHandle(file);
    }
};
/// What CreateFileW has returned; closed with this.
using FileHandle = std::unique_ptr<HANDLE, CloseFile>;
