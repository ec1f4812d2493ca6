#pragma once

#include <cstddef>

/// Puts stars in the place of the hashes that the log's lines about passwords carry: for a log that a user
/// gets to see. Takes a text from its beginning in pieces of any size, whose lengths it keeps. One thread.
class HashMask {
public:
    void Apply(char* text, std::size_t size);

private:
    std::size_t m_matched = 0; // characters of the words before a hash, up to here
};
