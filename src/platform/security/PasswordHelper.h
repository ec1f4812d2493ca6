#pragma once

#include <string>

/// Hashes of the six-digit passwords that the service sets and the user types.
class PasswordHelper {
public:
    /// The hash of `password` that travels on the pipe, as 64 lower-case hexadecimal digits:
    /// PBKDF2 with HMAC-SHA-256, the salt "velmora-ryx-password-v1", Iterations rounds, 32 bytes.
    /// Slow on purpose (about ten milliseconds), so that trying all passwords against a hash hurts.
    static std::string HashVelmoraPassword(const std::string& password);

    static constexpr int Iterations = 10000;
};
