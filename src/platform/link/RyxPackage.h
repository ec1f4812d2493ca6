#pragma once

#include "platform/link/PipeKey.h"

#include <cstddef>
#include <cstdint>
#include <string>

/// The frame on the pipe: little-endian uint32 length of the body in bytes, int32 key, body.
class RyxPackage {
public:
    static constexpr std::size_t HeaderSize = 8;
    static constexpr std::size_t MaxBodySize = 16u * 1024 * 1024;

    /// The frame of one message; empty when the body is larger than MaxBodySize.
    static std::string PackageData(PipeKey key, const std::string& body);

    /// True when `packet` is exactly one whole frame.
    static bool IsPackage(const std::string& packet);

    /// The key of a frame.
    static PipeKey KeyOf(const std::string& packet);
};

/// Cuts a byte stream into frames. Takes bytes in pieces of any size; owned by one thread.
class FrameDecoder {
public:
    struct Frame {
        PipeKey key{};
        std::string body;
    };
    enum class Result {
        Frame,      ///< a whole frame was taken out
        Incomplete, ///< more bytes are needed
        TooLong,    ///< the header claims more than MaxBodySize: the stream cannot be followed any more
    };

    void Append(const char* data, std::size_t size);

    /// Takes the next whole frame out of the stream; `frame` is only written on Result::Frame.
    Result Next(Frame& frame);

    /// Body length that the header at the front of the stream claims; 0 while the header is incomplete.
    std::uint32_t ClaimedBodySize() const;

    /// Bytes taken in that belong to no whole frame yet.
    std::size_t PendingSize() const { return m_buffer.size() - m_begin; }

    void Reset();

private:
    std::string m_buffer;
    std::size_t m_begin = 0;
};
