#pragma once

#include <windows.h>

#include <objbase.h>

/// COM on this thread while it lives. Where COM runs in another model already, that one serves as well and is
/// left as it is.
class ComGuard {
public:
    /// `model` is one of COINIT's.
    explicit ComGuard(DWORD model) : m_result(CoInitializeEx(nullptr, model)) {}
    ~ComGuard() {
        if (SUCCEEDED(m_result))
            CoUninitialize();
    }
    ComGuard(const ComGuard&) = delete;
    ComGuard& operator=(const ComGuard&) = delete;

    HRESULT Result() const { return m_result == RPC_E_CHANGED_MODE ? S_OK : m_result; }

private:
    const HRESULT m_result;
};
