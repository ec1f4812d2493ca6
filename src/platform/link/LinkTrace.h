#pragma once

#include "platform/link/PipeKey.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// The last messages of the link and what became of it between them, for whoever looks for a fault. It knows
/// how large a body was and never what stood in it. GUI thread.
class LinkTrace {
public:
    static constexpr std::size_t Capacity = 500;

    enum class Event : std::uint8_t {
        Received,
        Sent,
        NotSent, ///< the link was down, or the service did not read
        Connected,
        Disconnected,
    };
    struct Entry {
        std::int64_t time; ///< milliseconds since 1970, UTC
        std::size_t size;  ///< bytes of the body
        PipeKey key;       ///< of a message
        Event event;
    };

    void Add(std::int64_t time, Event event, PipeKey key = {}, std::size_t size = 0);

    std::size_t Count() const { return m_ring.size(); }
    /// The entries, one line each, the oldest first: local time, direction, key, name, size.
    std::string Text() const;

private:
    std::vector<Entry> m_ring;
    std::size_t m_oldest = 0;
};
