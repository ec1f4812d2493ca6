#pragma once

#include "platform/link/RyxPackage.h"

#include <deque>
#include <mutex>
#include <string>
#include <vector>

/// What the link's I/O thread and the GUI thread hand each other. All members are thread-safe.
class PipeExchange {
public:
    /// Unread incoming bytes at which the I/O thread stops reading, so that a flooding service is held
    /// back by the pipe itself instead of filling memory.
    static constexpr std::size_t IncomingLimit = 32u * 1024 * 1024;
    /// Unsent bytes beyond which Send refuses: the service has stopped reading.
    static constexpr std::size_t OutgoingLimit = 64u * 1024 * 1024;

    /// One thing that happened on the link, in the order it happened.
    struct Event {
        enum class Kind { Connected, Dropped, Message };
        Kind kind = Kind::Message;
        FrameDecoder::Frame frame;
    };

    enum class Queued { Refused, Appended, First };

    /// I/O thread: appends `events`. True when the GUI thread must be woken.
    bool PushEvents(std::vector<Event>&& events);
    /// I/O thread: true when unread bytes have reached the limit; the GUI thread then calls for more
    /// once TakeEvents has emptied the queue.
    bool MustPause();
    bool HasEvents() const;
    /// GUI thread: moves everything that waits into the empty `out`. True when reading was paused.
    bool TakeEvents(std::deque<Event>& out);

    /// GUI thread: appends a frame for the service. First: the I/O thread must be woken.
    Queued PushPacket(const std::string& packet);
    /// I/O thread: everything that waits to be written.
    std::string TakePackets();
    /// I/O thread: bytes it has taken and the pipe has not yet accepted; they count against the limit.
    void SetUnwritten(std::size_t bytes);

    /// I/O thread: from now on PushPacket takes frames.
    void Open();
    /// I/O thread: PushPacket refuses from now on; drops the frames that wait and returns their size in
    /// bytes.
    std::size_t Close();
    bool IsOpen() const;

private:
    mutable std::mutex m_mutex;
    std::deque<Event> m_events;
    std::size_t m_eventBytes = 0;
    std::string m_packets;
    std::size_t m_unwritten = 0;
    bool m_open = false;
    bool m_paused = false;
};
