#include "platform/system/SystemSession.h"

#include <cstdio>

namespace {

std::string Describe(const std::string& operation, std::int32_t result, const std::string& words) {
    char code[16];
    std::snprintf(code, sizeof code, "0x%08X", static_cast<unsigned>(result));
    return operation + " failed with " + code + ": " + (words.empty() ? "unknown error" : words);
}

} // namespace

HResultError::HResultError(const std::string& operation, std::int32_t result)
    : std::runtime_error(Describe(operation, result, SystemSession::Native().DescribeResult(result))),
      m_result(result) {}
